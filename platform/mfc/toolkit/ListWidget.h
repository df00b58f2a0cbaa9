// Model and widget of a report. For sources only.
#pragma once

#include <deque>
#include <memory>
#include <optional>

#include <QAbstractItemModel>
#include <QTreeView>

#include "platform/mfc/ListCtrl.h"
#include "platform/mfc/toolkit/WindowCore.h"

struct ListRow {
    std::vector<CString> cells; ///< may have fewer cells than there are columns
    int image = -1;
    DWORD_PTR data = 0;
};

struct ListColumn {
    CString heading;
    int format;
};

/// Adding rows at either end is cheap, since reports grow there.
class ListModel final : public QAbstractItemModel {
public:
    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex&) const override { return {}; }
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    bool HasRow(int row) const { return row >= 0 && row < rowCount(); }
    bool HasColumn(int column) const { return column >= 0 && column < columnCount(); }
    ListRow& Row(int row) { return *m_rows[static_cast<std::size_t>(row)]; }
    const ListRow& Row(int row) const { return *m_rows[static_cast<std::size_t>(row)]; }
    const ListColumn& Column(int column) const {
        return m_columns[static_cast<std::size_t>(column)];
    }
    const CString& Cell(int row, int column) const;
    void SetCell(int row, int column, const wchar_t* text);
    void Changed(int row);

    void InsertColumn(int place, ListColumn column);
    void RemoveColumn(int column);
    void InsertRow(int place, ListRow row);
    void RemoveRow(int row);
    void Clear();
    void Sort(const std::function<int(DWORD_PTR, DWORD_PTR)>& compare);

private:
    std::deque<std::unique_ptr<ListRow>> m_rows;
    std::vector<ListColumn> m_columns;
};

class ListWidget final : public HookedArea<QTreeView> {
public:
    ListWidget(QWidget* pParent, UINT style);

    ListModel& Rows() { return m_model; }
    const ListModel& Rows() const { return m_model; }
    void SetExtendedStyle(UINT style);
    void SetImages(const CImageList& images);
    /// Colours that are not set default to the theme's.
    void SetTextColor(COLORREF color);
    void SetBackColor(COLORREF color);
    COLORREF TextColor() const { return m_textColor.value_or(GetSysColor(COLOR_WINDOWTEXT)); }
    COLORREF BackColor() const { return m_backColor.value_or(GetSysColor(COLOR_WINDOW)); }
    int ContentWidth(int column) const;
    int HeaderWidth(int column) const;
    void SetState(int row, UINT state, UINT mask);
    UINT State(int row) const;
    /// Changes rows and their selection without sending notifications.
    template <class Change>
    void ChangeQuietly(Change change) {
        const bool before = std::exchange(m_quiet, true);
        change();
        m_quiet = before;
    }

    void AppendLines(std::vector<std::wstring>& lines) const override;
    bool WantsReturn() const override { return true; }
    bool OwnsRelease() const override { return m_pressed; }

protected:
    void paintEvent(QPaintEvent* pEvent) override;
    void drawRow(QPainter* pPainter, const QStyleOptionViewItem& option,
                 const QModelIndex& index) const override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseReleaseEvent(QMouseEvent* pEvent) override;
    void mouseDoubleClickEvent(QMouseEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;

private:
    class RowPainter;
    void TellChanges(const QItemSelection& rows, UINT newState, UINT oldState);
    void TellClick(UINT code, const QPoint& point);

    ListModel m_model;
    UINT m_style;
    UINT m_extendedStyle = 0;
    std::vector<QIcon> m_images;
    QSize m_imageSize;
    std::optional<COLORREF> m_textColor;
    std::optional<COLORREF> m_backColor;
    bool m_pressed = false;
    bool m_quiet = false;
    bool m_painting = false;
    /// State of the current paint: the handler's answer to the first stage.
    mutable bool m_prePaintDone = false;
    mutable LRESULT m_prePaintAnswer = 0;
};
