#include "host/desktop/CommandPalette.h"

#include <QAbstractListModel>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include "host/desktop/QtTexts.h"

namespace Tessaly {

namespace {

enum Role { kName = Qt::UserRole, kDescription, kWhyNot };

/// Draws the name and, paler, the description or why the command cannot run.
class EntryDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter* pPainter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const bool isSelected = option.state & QStyle::State_Selected;
        const bool isAble = index.data(kWhyNot).toString().isEmpty();
        const QPalette& colors = option.palette;
        const auto group = isAble ? QPalette::Active : QPalette::Disabled;
        if (isSelected) {
            pPainter->fillRect(option.rect, colors.brush(QPalette::Active, QPalette::Highlight));
        }
        const QRect line = option.rect.adjusted(8, 0, -8, 0);
        pPainter->setPen(colors.color(isSelected ? QPalette::Active : group,
                                      isSelected ? QPalette::HighlightedText : QPalette::Text));
        const QString name = index.data(kName).toString();
        pPainter->drawText(line, Qt::AlignVCenter | Qt::AlignLeft, name);
        const int used = option.fontMetrics.horizontalAdvance(name) + 16;
        const QRect rest = line.adjusted(used, 0, 0, 0);
        if (!isSelected) {
            pPainter->setPen(colors.color(QPalette::PlaceholderText));
        }
        const QString text = index.data(isAble ? kDescription : kWhyNot).toString();
        pPainter->drawText(rest, Qt::AlignVCenter | Qt::AlignRight,
                           option.fontMetrics.elidedText(text, Qt::ElideRight, rest.width()));
    }
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
        return {option.rect.width(), option.fontMetrics.height() + 10};
    }
};

} // namespace

class CommandPalette::Model final : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;
    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(m_found.size());
    }
    QVariant data(const QModelIndex& index, int role) const override {
        const CommandEntry& entry =
            m_search.Entries()[m_found[static_cast<std::size_t>(index.row())]];
        switch (role) {
        case Qt::DisplayRole:
        case kName:
            return ToQt(entry.name.View());
        case Qt::AccessibleDescriptionRole:
        case kDescription:
            return ToQt(entry.description.View());
        case kWhyNot:
            return ToQt(entry.whyNot.View());
        default:
            return {};
        }
    }
    void Reset(std::vector<CommandEntry> entries, std::vector<CString> recent) {
        m_search = CommandSearch(std::move(entries));
        m_recent = std::move(recent);
    }
    void Find(const CString& query) {
        beginResetModel();
        m_found = m_search.Find(query, m_recent);
        endResetModel();
    }

private:
    CommandSearch m_search{{}};
    std::vector<CString> m_recent;
    std::vector<std::size_t> m_found;
};

CommandPalette::CommandPalette(QWidget* pParent)
    : QFrame(pParent), m_pInput(new QLineEdit), m_pList(new QListView), m_pModel(new Model(this)) {
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setAccessibleName(QtText(Msg::CommandPalette));
    m_pInput->setPlaceholderText(QtText(Msg::FindACommand));
    m_pInput->setAccessibleName(QtText(Msg::SearchName));
    m_pInput->installEventFilter(this);
    m_pList->setModel(m_pModel);
    m_pList->setItemDelegate(new EntryDelegate(m_pList));
    m_pList->setUniformItemSizes(true);
    m_pList->setFocusPolicy(Qt::NoFocus);
    m_pList->setFrameShape(QFrame::NoFrame);
    m_pList->setAccessibleName(QtText(Msg::CommandsName));
    auto* const pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(6, 6, 6, 6);
    pLayout->addWidget(m_pInput);
    pLayout->addWidget(m_pList);
    connect(m_pInput, &QLineEdit::textChanged, this, [this] { Search(); });
    connect(m_pList, &QListView::clicked, this, [this] { Choose(); });
    hide();
}

CommandPalette::~CommandPalette() = default;

void CommandPalette::Open(std::vector<CommandEntry> entries, std::vector<CString> recent) {
    m_pModel->Reset(std::move(entries), std::move(recent));
    m_pInput->clear();
    Search();
    const QSize room = parentWidget()->size();
    const int width = std::min(720, room.width() * 9 / 10);
    setGeometry((room.width() - width) / 2, room.height() / 12, width,
                std::min(440, room.height() * 3 / 4));
    show();
    raise();
    m_pInput->setFocus(Qt::PopupFocusReason);
}

void CommandPalette::Search() {
    m_pModel->Find(FromQt(m_pInput->text()));
    m_pList->setCurrentIndex(m_pModel->index(0, 0));
    m_pList->scrollToTop();
}

void CommandPalette::Choose() {
    const QModelIndex index = m_pList->currentIndex();
    // Commands that cannot run keep the list open, where their reason is visible.
    if (index.isValid() && index.data(kWhyNot).toString().isEmpty()) {
        hide();
        emit chosen(index.data(kName).toString());
    }
}

bool CommandPalette::eventFilter(QObject* pWatched, QEvent* pEvent) {
    if (pEvent->type() == QEvent::FocusOut && !isAncestorOf(QApplication::focusWidget())) {
        hide();
    }
    if (pEvent->type() == QEvent::KeyPress) {
        const auto& key = static_cast<const QKeyEvent&>(*pEvent);
        switch (key.key()) {
        case Qt::Key_Escape:
            hide();
            parentWidget()->setFocus();
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            Choose();
            return true;
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            QCoreApplication::sendEvent(m_pList, pEvent);
            return true;
        default:
            break;
        }
    }
    return QFrame::eventFilter(pWatched, pEvent);
}

} // namespace Tessaly
