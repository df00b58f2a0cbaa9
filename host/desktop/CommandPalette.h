// A searchable list of all commands.
#pragma once

#include <QFrame>

#include "host/desktop/CommandSearch.h"

class QLineEdit;
class QListView;

namespace Tessaly {

/// Pops up over the window and closes when it loses the focus. Keeps no state between uses.
class CommandPalette final : public QFrame {
    Q_OBJECT
public:
    explicit CommandPalette(QWidget* pParent);
    ~CommandPalette() override;

    void Open(std::vector<CommandEntry> entries, std::vector<CString> recent);

signals:
    void chosen(const QString& name);

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    class Model;
    void Search();
    void Choose();

    QLineEdit* m_pInput;
    QListView* m_pList;
    Model* m_pModel;
};

} // namespace Tessaly
