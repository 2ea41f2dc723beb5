// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/views/item_delegate.h"

#include "zonestyle/models/model_abstract.h"

#include <sdk/uicommon/edit_session.h>

#include <QApplication>
#include <QComboBox>
#include <QHelpEvent>
#include <QLineEdit>
#include <QMetaProperty>
#include <QPainter>
#include <QTimer>
#include <QToolTip>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::views {

static constexpr int kVerticalPadding = 2; // above and below the contents of every cell
static constexpr char kFilledProperty[] = "zonestyleEditorFilled";

static bool isRelevant(const QModelIndex& index)
{
    const auto* model = qobject_cast<const models::ModelAbstract*>(index.model());
    return !model || model->isRelevant(index);
}

QString problemOf(const QString& text, const QModelIndex& index)
{
    const auto* model = qobject_cast<const models::ModelAbstract*>(index.model());
    return model ? model->columnTextProblem(index.column(), text) : QString();
}

namespace {

/// Lives as long as an editor, and closes it without an edit when the cell may be another one.
class EditorSession : public QObject
{
public:
    EditorSession(ItemDelegate& delegate, QWidget& editor)
        : QObject(&editor)
        , m_session([&delegate, &editor] {
            Q_EMIT delegate.closeEditor(&editor, QAbstractItemDelegate::RevertModelCache);
        })
    {
    }

private:
    EditSession m_session;
};

} // namespace

ItemDelegate::ItemDelegate(QAbstractItemView& view)
    : QItemDelegate(&view)
    , m_view(&view)
    , m_blackPen(QColor(0, 0, 0, 255))
    , m_darkGreyPen(QColor(64, 64, 64, 255))
{
}

QStyleOptionViewItem ItemDelegate::cellOption(const QStyleOptionViewItem& option,
                                              const QModelIndex& index) const
{
    QStyleOptionViewItem cell = option;
    cell.showDecorationSelected = true;
    cell.state.setFlag(QStyle::State_Enabled, isRelevant(index));
    if (cell.state.testFlag(QStyle::State_Enabled))
        return cell;
    cell.palette.setCurrentColorGroup(QPalette::Disabled); // check marks take their colour from it
    const bool isActive = cell.state.testFlag(QStyle::State_Active);
    cell.palette.setBrush(QPalette::Disabled, QPalette::Highlight,
                          option.palette.brush(isActive ? QPalette::Active : QPalette::Inactive,
                                               QPalette::Highlight));
    cell.palette.setBrush(QPalette::Disabled, QPalette::HighlightedText,
                          option.palette.brush(QPalette::Disabled, QPalette::Text));
    return cell;
}

void ItemDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const
{
    if (!index.isValid())
        return;
    QStyleOptionViewItem cell = cellOption(option, index);
    const bool hasFocus = cell.state.testFlag(QStyle::State_HasFocus);
    cell.state.setFlag(QStyle::State_HasFocus, false);
    QItemDelegate::paint(painter, cell, index);
    cell.state.setFlag(QStyle::State_HasFocus, hasFocus);
    drawFocus(painter, cell, cell.rect);
}

QSize ItemDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    return contentsSize(option, index) + QSize(0, 2 * kVerticalPadding);
}

int ItemDelegate::fittingWidth(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    return QItemDelegate::sizeHint(option, index).width();
}

QSize ItemDelegate::contentsSize(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    return QItemDelegate::sizeHint(option, index);
}

QWidget* ItemDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                    const QModelIndex& index) const
{
    QWidget* editor = isRelevant(index) ? makeEditor(parent, index) : nullptr;
    if (editor)
        new EditorSession(*const_cast<ItemDelegate*>(this), *editor);
    return editor;
}

QWidget* ItemDelegate::makeEditor(QWidget* parent, const QModelIndex&) const
{
    auto* editor = new QLineEdit(parent);
    editor->setFrame(false);
    editor->setAutoFillBackground(true);
    return editor;
}

/// The double click that opened the editor is handed on to it and sets the cursor.
static void selectTextLater(QWidget* editor)
{
    auto* comboBox = qobject_cast<QComboBox*>(editor);
    auto* lineEdit = comboBox ? comboBox->lineEdit() : qobject_cast<QLineEdit*>(editor);
    if (!lineEdit)
        return;
    QTimer::singleShot(0, lineEdit, [lineEdit] {
        if (!lineEdit->isModified())
            lineEdit->selectAll();
    });
}

void ItemDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    if (editor->property(kFilledProperty).toBool())
        return;
    editor->setProperty(kFilledProperty, true);
    fillEditor(editor, index);
    selectTextLater(editor);
}

void ItemDelegate::fillEditor(QWidget* editor, const QModelIndex& index) const
{
    QItemDelegate::setEditorData(editor, index);
}

void ItemDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                const QModelIndex& index) const
{
    const QVariant value = editedValue(*editor);
    if (!value.isValid() || !problemOf(value.toString(), index).isEmpty())
        return;
    writeLater(*model, [model, value, written = QPersistentModelIndex(index), view = m_view] {
        if (!written.isValid())
            return;
        if (view && view->model() == model && view->selectionModel())
            view->selectionModel()->setCurrentIndex(written, QItemSelectionModel::NoUpdate);
        model->setData(written, value, Qt::EditRole);
    });
}

void ItemDelegate::writeLater(QAbstractItemModel& model, const std::function<void()>& write)
{
    const auto writeToTheSameMaps = [write, generation = EditSession::documentGeneration()] {
        if (generation == EditSession::documentGeneration())
            write();
    };
    QTimer::singleShot(0, &model, writeToTheSameMaps);
}

QVariant ItemDelegate::editedValue(const QWidget& editor) const
{
    return editor.property(editor.metaObject()->userProperty().name());
}

bool ItemDelegate::editorEvent(QEvent* event, QAbstractItemModel* model,
                               const QStyleOptionViewItem& option, const QModelIndex& index)
{
    if (!model->flags(index).testFlag(Qt::ItemIsEditable))
        return false;
    const bool startsEditing =
        event->type() == QEvent::MouseButtonDblClick || event->type() == QEvent::KeyPress;
    if (startsEditing && m_view && m_view->selectionModel()) {
        m_view->selectionModel()->select(
            index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
    return QItemDelegate::editorEvent(event, model, option, index);
}

bool ItemDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                             const QStyleOptionViewItem& option, const QModelIndex& index)
{
    const QVariant shown = index.data(Qt::DisplayRole);
    const bool isCut =
        shown.type() == QVariant::String && fittingWidth(option, index) > option.rect.width();
    if (event->type() != QEvent::ToolTip || !isCut || index.data(Qt::ToolTipRole).isValid())
        return QItemDelegate::helpEvent(event, view, option, index);
    QToolTip::showText(event->globalPos(),
                       QStringLiteral("<span>%1</span>").arg(shown.toString().toHtmlEscaped()),
                       view, option.rect);
    return true;
}

void ItemDelegate::drawDisplay(QPainter* painter, const QStyleOptionViewItem& option,
                               const QRect& rect, const QString& text) const
{
    if (rect.isEmpty())
        return;
    const QStyle& style = *(option.widget ? option.widget->style() : QApplication::style());
    const int margin = style.pixelMetric(QStyle::PM_FocusFrameVMargin, &option, option.widget);
    QItemDelegate::drawDisplay(painter, option, rect.translated(0, -(margin + 1) / 2), text);
}

void ItemDelegate::drawFocus(QPainter* painter, const QStyleOptionViewItem& option,
                             const QRect& rect) const
{
    if (!option.state.testFlag(QStyle::State_HasFocus) || !rect.isValid())
        return;
    painter->save();
    const bool isEnabled = option.state.testFlag(QStyle::State_Enabled);
    constexpr int kDark = 128;
    if (option.palette.color(QPalette::Base).lightness() < kDark)
        painter->setPen(option.palette.color(isEnabled ? QPalette::Active : QPalette::Disabled,
                                             QPalette::Text));
    else
        painter->setPen(isEnabled ? m_blackPen : m_darkGreyPen);
    painter->drawRect(rect.adjusted(0, 0, -1, -1));
    painter->restore();
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::views
