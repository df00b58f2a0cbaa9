#include "platform/mfc/toolkit/ListWidget.h"

#include <algorithm>

#include <QHeaderView>
#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyledItemDelegate>

#include "platform/mfc/toolkit/Convert.h"
#include "platform/mfc/toolkit/DcImpl.h"

namespace {

constexpr int kCellMargin = 6;

/// Makes rows high enough for their pictures, which the model does not know.
class RowHeights final : public QStyledItemDelegate {
public:
    RowHeights(QObject* pParent, const QSize& images)
        : QStyledItemDelegate(pParent), m_images(images) {}
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        constexpr int kRoom = 2;
        return QStyledItemDelegate::sizeHint(option, index)
            .expandedTo(QSize(0, m_images.height() + kRoom));
    }

private:
    const QSize& m_images;
};

} // namespace

/// Paints one row, stage by stage.
class ListWidget::RowPainter {
public:
    RowPainter(const ListWidget& list, QPainter& painter, const QStyleOptionViewItem& option,
               int row)
        : m_list(list), m_painter(painter), m_option(option), m_row(row), m_dc(DrawWith(painter)) {
        m_draw.pDC = &m_dc;
        m_draw.iItem = row;
        m_draw.lItemlParam = static_cast<LPARAM>(list.m_model.Row(row).data);
        m_draw.clrText = list.TextColor();
        m_draw.clrTextBk = list.BackColor();
        m_draw.rc = ToCRect(option.rect);
    }

    void Paint() {
        if (!m_list.m_prePaintDone) {
            m_list.m_prePaintDone = true;
            m_list.m_prePaintAnswer = Ask(CDDS_PREPAINT, 0);
        }
        LRESULT answer = 0;
        if (m_list.m_prePaintAnswer & CDRF_NOTIFYITEMDRAW) {
            answer = Ask(CDDS_ITEMPREPAINT, 0);
        }
        const COLORREF rowText = m_draw.clrText;
        const COLORREF rowBack = m_draw.clrTextBk;
        for (int column = 0; column < m_list.m_model.columnCount(); ++column) {
            m_draw.clrText = rowText;
            m_draw.clrTextBk = rowBack;
            LRESULT cellAnswer = 0;
            m_draw.rc = CellRect(column);
            if (answer & CDRF_NOTIFYSUBITEMDRAW) {
                cellAnswer = Ask(CDDS_SUBITEM | CDDS_ITEMPREPAINT, column);
            }
            PaintCell(column);
            if (cellAnswer & CDRF_NOTIFYPOSTPAINT) {
                Ask(CDDS_SUBITEM | CDDS_ITEMPOSTPAINT, column);
            }
        }
        if (answer & CDRF_NOTIFYPOSTPAINT) {
            Ask(CDDS_ITEMPOSTPAINT, 0);
        }
    }

private:
    LRESULT Ask(UINT stage, int column) {
        m_draw.dwDrawStage = stage;
        m_draw.iSubItem = column;
        WindowCore* const pCore = m_list.Core();
        return pCore ? pCore->Notify(m_draw.hdr, NM_CUSTOMDRAW) : 0;
    }

    CRect CellRect(int column) const {
        return {CPoint(m_list.columnViewportPosition(column), m_option.rect.top()),
                CSize(m_list.columnWidth(column), m_option.rect.height())};
    }

    bool ShowsSelected(int column) const {
        const bool shown = m_list.hasFocus() || (m_list.m_style & LVS_SHOWSELALWAYS);
        const bool inReach = column == 0 || (m_list.m_extendedStyle & LVS_EX_FULLROWSELECT);
        return shown && inReach && (m_list.State(m_row) & LVIS_SELECTED);
    }

    void PaintCell(int column) {
        QStyleOptionViewItem cell = m_option;
        cell.rect = ToQRect(CellRect(column));
        cell.index = m_list.m_model.index(m_row, column);
        cell.text = ToQString(m_list.m_model.Cell(m_row, column).View());
        cell.features = QStyleOptionViewItem::HasDisplay;
        cell.font = m_painter.font();
        cell.fontMetrics = QFontMetrics(cell.font);
        cell.displayAlignment = Qt::Alignment(
            m_list.m_model.headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).toInt());
        cell.textElideMode = Qt::ElideRight;
        cell.state.setFlag(QStyle::State_Selected, ShowsSelected(column));
        cell.state.setFlag(QStyle::State_MouseOver, false);
        cell.backgroundBrush = ToQColor(m_draw.clrTextBk);
        cell.palette.setColor(QPalette::Text, ToQColor(m_draw.clrText));
        const int image = m_list.m_model.Row(m_row).image;
        if (column == 0 && image >= 0 && image < static_cast<int>(m_list.m_images.size())) {
            cell.features |= QStyleOptionViewItem::HasDecoration;
            cell.icon = m_list.m_images[static_cast<std::size_t>(image)];
            cell.decorationSize = m_list.m_imageSize;
        }
        m_list.style()->drawControl(QStyle::CE_ItemViewItem, &cell, &m_painter, &m_list);
        if (m_list.m_extendedStyle & LVS_EX_GRIDLINES) {
            m_painter.setPen(m_list.palette().color(QPalette::Midlight));
            m_painter.drawLine(cell.rect.bottomLeft(), cell.rect.bottomRight());
            m_painter.drawLine(cell.rect.topRight(), cell.rect.bottomRight());
        }
    }

    const ListWidget& m_list;
    QPainter& m_painter;
    const QStyleOptionViewItem& m_option;
    int m_row;
    CDC m_dc;
    NMLVCUSTOMDRAW m_draw;
};

ListWidget::ListWidget(QWidget* pParent, UINT style) : HookedArea(pParent), m_style(style) {
    setModel(&m_model);
    setItemDelegate(new RowHeights(this, m_imageSize));
    setUniformRowHeights(true);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setEditTriggers(NoEditTriggers);
    setAllColumnsShowFocus(true);
    setSelectionBehavior(SelectRows);
    setSelectionMode(style & LVS_SINGLESEL ? SingleSelection : ExtendedSelection);
    header()->setStretchLastSection(false);
    header()->setSectionsMovable(false);
    header()->setHidden((style & LVS_NOCOLUMNHEADER) != 0);
    QObject::connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
                     [this](const QItemSelection& on, const QItemSelection& off) {
                         TellChanges(off, 0, LVIS_SELECTED);
                         TellChanges(on, LVIS_SELECTED, 0);
                     });
}

void ListWidget::SetExtendedStyle(UINT style) {
    m_extendedStyle = style;
    viewport()->update();
}

void ListWidget::SetImages(const CImageList& images) {
    m_images.clear();
    for (int index = 0; index < images.GetImageCount(); ++index) {
        m_images.push_back(ToRowIcon(images.GetImage(index)));
    }
    m_imageSize = QSize(images.ImageSize().cx, images.ImageSize().cy);
    setIconSize(m_imageSize);
    scheduleDelayedItemsLayout();
}

void ListWidget::SetTextColor(COLORREF color) {
    m_textColor = color;
    viewport()->update();
}

void ListWidget::SetBackColor(COLORREF color) {
    m_backColor = color;
    viewport()->update();
}

int ListWidget::ContentWidth(int column) const {
    const QFontMetrics metrics = fontMetrics();
    int widest = 0;
    for (int row = 0; row < m_model.rowCount(); ++row) {
        const CString& text = m_model.Cell(row, column);
        widest = std::max(widest, metrics.horizontalAdvance(ToQString(text.View())));
    }
    const int image = column == 0 && !m_images.empty() ? m_imageSize.width() + kCellMargin : 0;
    return widest + image + 2 * kCellMargin;
}

int ListWidget::HeaderWidth(int column) const {
    return header()->isHidden() ? 0 : header()->sectionSizeHint(column);
}

void ListWidget::SetState(int row, UINT state, UINT mask) {
    // Do not notify the widget of state changes made while painting a row: it would repaint
    // endlessly.
    const QSignalBlocker blocker(m_painting ? selectionModel() : nullptr);
    if (mask & LVIS_SELECTED) {
        const bool on = (state & LVIS_SELECTED) != 0;
        if (row < 0 && on) {
            selectAll();
        } else if (row < 0) {
            clearSelection();
        } else {
            selectionModel()->select(m_model.index(row, 0),
                                     QItemSelectionModel::Rows |
                                         (!on ? QItemSelectionModel::Deselect
                                          : (m_style & LVS_SINGLESEL)
                                              ? QItemSelectionModel::ClearAndSelect
                                              : QItemSelectionModel::Select));
        }
    }
    if ((mask & state & LVIS_FOCUSED) && row >= 0) {
        selectionModel()->setCurrentIndex(m_model.index(row, 0), QItemSelectionModel::NoUpdate);
    }
}

UINT ListWidget::State(int row) const {
    const bool selected = selectionModel()->isSelected(m_model.index(row, 0));
    const bool focused = currentIndex().isValid() && currentIndex().row() == row;
    return (selected ? LVIS_SELECTED : 0) | (focused ? LVIS_FOCUSED : 0);
}

void ListWidget::AppendLines(std::vector<std::wstring>& lines) const {
    for (int row = 0; row < m_model.rowCount(); ++row) {
        std::wstring line;
        for (int column = 0; column < m_model.columnCount(); ++column) {
            line += (column == 0 ? L"" : L"\t") + m_model.Cell(row, column).Str();
        }
        lines.push_back(std::move(line));
    }
}

void ListWidget::paintEvent(QPaintEvent* pEvent) {
    m_painting = true;
    m_prePaintDone = false;
    HookedArea::paintEvent(pEvent);
    m_painting = false;
}

void ListWidget::drawRow(QPainter* pPainter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
    RowPainter(*this, *pPainter, option, index.row()).Paint();
}

void ListWidget::mousePressEvent(QMouseEvent* pEvent) {
    m_pressed = true;
    HookedArea::mousePressEvent(pEvent);
}

void ListWidget::mouseReleaseEvent(QMouseEvent* pEvent) {
    const bool clicked = std::exchange(m_pressed, false);
    const QPoint point = pEvent->position().toPoint();
    const Qt::MouseButton button = pEvent->button();
    const QPointer<QWidget> self = this;
    HookedArea::mouseReleaseEvent(pEvent);
    if (self && clicked && viewport()->rect().contains(point)) {
        if (button == Qt::LeftButton) {
            TellClick(NM_CLICK, point);
        } else if (button == Qt::RightButton) {
            TellClick(NM_RCLICK, point);
        }
    }
}

void ListWidget::mouseDoubleClickEvent(QMouseEvent* pEvent) {
    const QPoint point = pEvent->position().toPoint();
    const QPointer<QWidget> self = this;
    HookedArea::mouseDoubleClickEvent(pEvent);
    if (!self || pEvent->button() != Qt::LeftButton) {
        return;
    }
    TellClick(NM_DBLCLK, point);
    if (self && indexAt(point).isValid()) {
        TellClick(LVN_ITEMACTIVATE, point);
    }
}

void ListWidget::keyPressEvent(QKeyEvent* pEvent) {
    if ((pEvent->key() == Qt::Key_Return || pEvent->key() == Qt::Key_Enter) &&
        currentIndex().isValid()) {
        TellClick(LVN_ITEMACTIVATE, visualRect(currentIndex()).center());
        return;
    }
    HookedArea::keyPressEvent(pEvent);
}

void ListWidget::TellChanges(const QItemSelection& rows, UINT newState, UINT oldState) {
    if (m_quiet) {
        return;
    }
    // Copied, as a handler may change the selection.
    std::vector<std::pair<int, int>> ranges;
    for (const QItemSelectionRange& range : rows) {
        ranges.emplace_back(range.top(), range.bottom());
    }
    for (const auto& [first, last] : ranges) {
        for (int row = first; row <= last; ++row) {
            WindowCore* const pCore = Core();
            if (!pCore || !m_model.HasRow(row)) {
                return;
            }
            NMLISTVIEW change;
            change.iItem = row;
            change.uNewState = newState;
            change.uOldState = oldState;
            change.uChanged = LVIF_STATE;
            change.lParam = static_cast<LPARAM>(m_model.Row(row).data);
            pCore->Notify(change.hdr, LVN_ITEMCHANGED);
        }
    }
}

void ListWidget::TellClick(UINT code, const QPoint& point) {
    WindowCore* const pCore = Core();
    if (!pCore) {
        return;
    }
    const QModelIndex hit = indexAt(point);
    NMITEMACTIVATE click;
    click.iItem = hit.isValid() ? hit.row() : -1;
    click.iSubItem = hit.isValid() ? hit.column() : 0;
    click.ptAction = ToCPoint(point);
    pCore->Notify(click.hdr, code);
}
