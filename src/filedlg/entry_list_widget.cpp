#include "filedlg/entry_list_widget.h"

#include <QAbstractListModel>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>
#include <utility>

#include "filedlg/file_events.h"
#include "panels/pictures_qt.h"
#include "platform/gate.h"

namespace {

constexpr int Row_Height = 20;
constexpr int Margin = 4;
constexpr int Icon_Width = 20;

constexpr int Icon_Role = Qt::UserRole;
constexpr int Indent_Role = Qt::UserRole + 1;

// Every row is as high as the others, so that the list need not ask each of 50,000.
class Row_Painter : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override {
        return {0, Row_Height};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const bool chosen = (option.state & QStyle::State_Selected) != 0;
        const QPalette::ColorGroup group =
            (option.state & QStyle::State_Active) != 0 ? QPalette::Active : QPalette::Inactive;
        if (chosen) painter->fillRect(option.rect, option.palette.brush(group, QPalette::Highlight));
        QRect place = option.rect.adjusted(Margin + index.data(Indent_Role).toInt(), 0, -Margin, 0);
        const int icon = index.data(Icon_Role).toInt();
        if (icon >= 0) {
            const QPixmap& drawing = Picture_Pixmap(Picture_Of(Picture_Store::FD_Icons, icon),
                                                    painter->device()->devicePixelRatioF());
            painter->drawPixmap(place.left(), place.top() + 3, drawing);
            place.setLeft(place.left() + Icon_Width);
        }
        painter->setFont(option.font);
        painter->setPen(option.palette.color(group, chosen ? QPalette::HighlightedText : QPalette::Text));
        const QString text =
            option.fontMetrics.elidedText(index.data().toString(), Qt::ElideRight, place.width());
        painter->drawText(place, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, text);
    }
};

}  // namespace

// Asks for a row when it is shown, and not before.
class Entry_List::Rows : public QAbstractListModel {
  public:
    using QAbstractListModel::QAbstractListModel;

    void Set(int count, std::function<Entry_Look(int)> look) {
        beginResetModel();
        count_ = count;
        look_ = std::move(look);
        endResetModel();
    }

    int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : count_; }

    QVariant data(const QModelIndex& index, int role) const override {
        if (!index.isValid() || index.row() >= count_) return {};
        if (role == Qt::DisplayRole || role == Qt::ToolTipRole) return look_(index.row()).text;
        if (role == Indent_Role) return look_(index.row()).indent;
        if (role == Icon_Role) {
            const Picture icon = look_(index.row()).icon;
            return icon.store == Picture_Store::None ? -1 : icon.item;
        }
        return {};
    }

  private:
    int count_ = 0;
    std::function<Entry_Look(int)> look_;
};

Entry_List::Entry_List(const char* name, const char* spoken, Entry_Events events, QWidget* parent)
    : QListView(parent), rows_(new Rows(this)), events_(events) {
    setObjectName(name);
    setAccessibleName(spoken);
    setModel(rows_);
    setItemDelegate(new Row_Painter(this));
    setUniformItemSizes(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    setTabKeyNavigation(false);
    setFrameShape(QFrame::NoFrame);
}

void Entry_List::Show(int revision, int count, int index, std::function<Entry_Look(int)> look) {
    const QScopedValueRollback<bool> showing(showing_, true);
    const bool fresh = revision != revision_;
    if (fresh) {
        revision_ = revision;
        rows_->Set(count, std::move(look));
    }
    if (currentIndex().row() == index) return;
    setCurrentIndex(rows_->index(index, 0));
    if (fresh && index >= 0) scrollTo(rows_->index(index, 0));
}

void Entry_List::mousePressEvent(QMouseEvent* event) {
    const QModelIndex pressed = indexAt(event->position().toPoint());
    {
        const QScopedValueRollback<bool> showing(showing_, true);
        if (pressed.isValid()) setCurrentIndex(pressed);
        setFocus(Qt::MouseFocusReason);
    }
    const int row = pressed.isValid() ? pressed.row() : -1;
    Guarded_Event([this, row] { FD_Event([this, row] { events_.pressed(row); }); });
}

void Entry_List::mouseDoubleClickEvent(QMouseEvent* event) {
    if (!indexAt(event->position().toPoint()).isValid()) return;
    Guarded_Event([this] { FD_Event(events_.double_clicked); });
}

void Entry_List::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space) {
        Guarded_Event([this] { FD_Event(events_.chosen); });
        return;
    }
    QListView::keyPressEvent(event);
}

// The toolkit makes the first row the current one then, without showing it; the first key would go past it.
void Entry_List::focusInEvent(QFocusEvent* event) {
    const QScopedValueRollback<bool> showing(showing_, true);
    const bool none = !currentIndex().isValid();
    QListView::focusInEvent(event);
    if (none) setCurrentIndex({});
}

void Entry_List::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QListView::currentChanged(current, previous);
    if (showing_) return;
    const int row = current.isValid() ? current.row() : -1;
    Guarded_Event([this, row] { FD_Event([this, row] { events_.moved(row); }); });
}
