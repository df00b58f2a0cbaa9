// The widget of a list of lines. For sources only.
#pragma once

#include <QAbstractListModel>
#include <QListView>

#include "platform/mfc/toolkit/WindowCore.h"

class LinesModel final : public QAbstractListModel {
public:
    explicit LinesModel(bool sorted) : m_sorted(sorted) {}
    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(m_lines.size());
    }
    QVariant data(const QModelIndex& index, int role) const override;
    int Add(CString line);
    void Clear();
    const CString& Line(int row) const { return m_lines[static_cast<std::size_t>(row)]; }

private:
    bool m_sorted;
    std::vector<CString> m_lines;
};

class ListBoxWidget final : public HookedArea<QListView> {
public:
    ListBoxWidget(QWidget* pParent, UINT style);
    void AppendLines(std::vector<std::wstring>& lines) const override;
    LinesModel& Lines() { return m_lines; }
    const LinesModel& Lines() const { return m_lines; }

private:
    LinesModel m_lines;
};
