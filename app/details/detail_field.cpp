// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/details/detail_field.h"

#include "app/details/held_button.h"
#include "host/document/line_map_name.h"
#include "plot/field/geometry/color_map.h"
#include "sdk/common_ui/number_field.h"
#include "sdk/dialogs_prompt/color_chooser_widget.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QSignalBlocker>
#include <QToolButton>
#include <QWidgetAction>

#include <cmath>
#include <limits>
#include <map>
#include <utility>

namespace corvala::app {

using host::Document;
using host::Frame;

DetailField::DetailField(style::Key key, QWidget* widget)
    : QObject(widget)
    , m_widget(widget)
    , m_key(key)
{
}

DetailField::~DetailField() = default;

host::StyleOutput DetailField::present(const Frame& frame) const
{
    return Document::instance().read(frame.id(), m_key, 0, m_index).value_or(0);
}

void DetailField::write(const host::StyleInput& value)
{
    host::SetStyle operation {host::pathOf(m_key), value};
    if (entry().indexCount > 0)
        operation.index = m_index;
    Document::instance().execute(operation);
    Q_EMIT written();
}

/// Of a value that is not a text, a number.
static host::StyleInput defaultOf(const style::Entry& entry)
{
    return entry.isText() ? host::StyleInput(std::string(entry.defaultText))
                          : host::StyleInput(entry.defaultNumber);
}

void DetailField::writeDefault()
{
    const host::Frame* const frame = Document::instance().activeFrame();
    if (frame && !hasDefault(*frame))
        write(defaultOf(entry()));
}

bool DetailField::hasDefault(const Frame& frame) const
{
    const host::StyleOutput value = present(frame);
    if (const std::string* const text = std::get_if<std::string>(&value))
        return *text == entry().defaultText;
    const double* const real = std::get_if<double>(&value);
    return (real ? *real : std::get<std::int32_t>(value)) == entry().defaultNumber;
}

namespace {

class SwitchField : public DetailField
{
public:
    SwitchField(style::Key key, QCheckBox* box)
        : DetailField(key, box)
        , m_box(*box)
    {
        connect(box, &QCheckBox::clicked, this, [this](bool isOn) { write(isOn); });
    }
    void refresh(const Frame& frame) override
    {
        m_box.setChecked(std::get<std::int32_t>(present(frame)) != 0);
    }

private:
    QCheckBox& m_box;
};

/// Long names and numbers do not widen the panel.
constexpr int kShownLetters = 12;

void keepNarrow(QComboBox& box)
{
    box.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box.setMinimumContentsLength(kShownLetters);
}

class ChoiceField : public DetailField
{
public:
    ChoiceField(style::Key key, QComboBox* box)
        : DetailField(key, box)
        , m_box(*box)
    {
        keepNarrow(*box);
        const bool areColors = key == style::contourGroups.colorMap;
        if (areColors)
            m_box.setIconSize({4 * box->fontMetrics().height(), box->fontMetrics().height()});
        for (const style::Choice& choice : entry().choices) {
            m_box.addItem(QCoreApplication::translate("StyleValues", choice.name), choice.value);
            if (areColors)
                m_box.setItemIcon(
                    m_box.count() - 1,
                    colorMapIcon(static_cast<ColorMap_e>(choice.value), m_box.iconSize()));
        }
        connect(box, QOverload<int>::of(&QComboBox::activated), this,
                [this](int position) { write(m_box.itemData(position).toDouble()); });
    }
    void refresh(const Frame& frame) override
    {
        m_box.setCurrentIndex(m_box.findData(int(std::get<std::int32_t>(present(frame)))));
    }

private:
    QComboBox& m_box;
};

/// The list is made anew only when names differ.
class VariableField : public DetailField
{
public:
    VariableField(style::Key key, QComboBox* box)
        : DetailField(key, box)
        , m_box(*box)
    {
        keepNarrow(*box);
        connect(box, QOverload<int>::of(&QComboBox::activated), this,
                [this](int number) { write(double(number)); });
    }
    void refresh(const Frame& frame) override
    {
        const QStringList names = namesOf(frame);
        if (names != m_names) {
            m_names = names;
            m_box.clear();
            m_box.addItems(names);
        }
        m_box.setCurrentIndex(std::get<std::int32_t>(present(frame)));
    }

private:
    QStringList namesOf(const Frame& frame) const
    {
        QStringList names {key() == style::isoSurfaces.var
                               ? DetailField::tr("That of contour group 1")
                               : DetailField::tr("None")};
        for (CvlInt64 number = 1; number <= frame.data()->variableCount(); ++number)
            names << QStringLiteral("%1: %2").arg(number).arg(
                QString::fromStdString(host::shownVariableName(frame.data(), number)));
        return names;
    }

    QComboBox& m_box;
    QStringList m_names;
};

/// Steps by the arrows are seen at once, what is typed when it is finished.
class NumberDetail : public DetailField
{
public:
    NumberDetail(style::Key key, ui::NumberField* field)
        : DetailField(key, field)
        , m_field(*field)
        , m_line(*field->findChild<QLineEdit*>())
    {
        constexpr double kInfinity = std::numeric_limits<double>::infinity();
        const auto limit = [](double number) {
            return std::abs(number) < style::kUnlimited ? number : std::copysign(kInfinity, number);
        };
        field->setLimits(limit(entry().minimum), limit(entry().maximum));
        field->setSingleStep(entry().isPercent ? 0.1 : 1.0);
        field->setMinimumWidth(kShownLetters * field->fontMetrics().averageCharWidth());
        connect(&m_line, &QLineEdit::textEdited, this,
                [this] { m_isTyped = m_field.number().has_value(); });
        connect(field, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
                &NumberDetail::take);
        connect(field, &QDoubleSpinBox::editingFinished, this, &NumberDetail::take);
        field->installEventFilter(this);
        mergeStepsWhileHeld(*field);
    }
    void refresh(const Frame& frame) override
    {
        const host::StyleOutput value = present(frame);
        const double* const real = std::get_if<double>(&value);
        show(real ? *real : std::get<std::int32_t>(value), false);
    }
    void showInstead(double number) override { show(number, true); }
    /// What was typed and does not fit waits for its index to be shown again.
    void setIndex(int index) override
    {
        m_isTyped = false;
        if (!m_field.number())
            m_refused[DetailField::index()] = m_line.text();
        m_shown.reset();
        DetailField::setIndex(index);
    }
    bool eventFilter(QObject*, QEvent* event) override
    {
        const bool isReturn = event->type() == QEvent::KeyPress
            && (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Return
                || static_cast<QKeyEvent*>(event)->key() == Qt::Key_Enter);
        if (isReturn)
            take();
        return isReturn;
    }

private:
    void show(double number, bool isInstead)
    {
        m_isInstead = isInstead;
        const bool isKept = m_isTyped || m_field.hasFocus() || !m_field.number();
        if (m_shown == number && isKept)
            return;
        m_shown = number;
        m_isTyped = false;
        showNumber(number);
        const auto refused = m_refused.find(index());
        if (refused == m_refused.end())
            return;
        m_line.setText(refused->second);
        m_refused.erase(refused);
    }

    void showNumber(double number)
    {
        const QSignalBlocker blocker(&m_field);
        m_field.setNumber(number);
    }

    void take()
    {
        const std::optional<double> number = m_field.number();
        if (!number)
            return;
        showNumber(*number); // in the notation of the program, whatever was typed
        const bool isOwnNow = std::exchange(m_isTyped, false) && m_isInstead;
        if (number == m_shown && !isOwnNow)
            return;
        m_shown = number;
        m_isInstead = false;
        write(*number);
    }

    ui::NumberField& m_field;
    QLineEdit& m_line; ///< of the field
    std::optional<double> m_shown;
    bool m_isInstead = false; ///< of what the frame says
    bool m_isTyped = false; ///< by hand, fits, and is not taken yet
    std::map<int, QString> m_refused; ///< by indexes that are not shown
};

class TextField : public DetailField
{
public:
    TextField(style::Key key, QLineEdit* line)
        : DetailField(key, line)
        , m_line(*line)
    {
        connect(line, &QLineEdit::editingFinished, this, [this] {
            if (m_line.isModified()) {
                m_line.setModified(false);
                write(m_line.text().toStdString());
            }
        });
    }
    void refresh(const Frame& frame) override
    {
        if (!m_line.isModified())
            m_line.setText(QString::fromStdString(std::get<std::string>(present(frame))));
    }

private:
    QLineEdit& m_line;
};

class ColorField : public DetailField
{
public:
    ColorField(style::Key key, QToolButton* button)
        : DetailField(key, button)
        , m_button(*button)
        , m_menu(new QMenu(button))
    {
        using dialogs::prompt::ColorChooserWidget;
        m_chooser =
            new ColorChooserWidget(m_menu, entry().groupColors, dialogs::prompt::ShowHelpButton_No);
        auto* action = new QWidgetAction(m_menu);
        action->setDefaultWidget(m_chooser);
        m_menu->addAction(action);
        button->setMenu(m_menu);
        button->setPopupMode(QToolButton::InstantPopup);
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        connect(m_chooser, &ColorChooserWidget::colorSelected, this, [this](int color) {
            m_menu->close();
            write(double(color));
        });
    }
    void refresh(const Frame& frame) override
    {
        const int color = std::get<std::int32_t>(present(frame));
        const int group = style::contourGroupOf(color);
        const host::Rgb rgb = Document::instance().color(color);
        QPixmap swatch(m_button.iconSize());
        swatch.fill(QColor(rgb.red, rgb.green, rgb.blue));
        m_button.setIcon(style::isPaletteColor(color) ? QIcon(swatch) : QIcon());
        m_button.setText(group > 0 ? DetailField::tr("By contour group %1").arg(group)
                             : color == style::kRgbColor ? DetailField::tr("By RGB")
                                                         : QString());
        m_chooser->setPresentColor(color);
    }

private:
    QToolButton& m_button;
    QMenu* m_menu; // owned by the button
    dialogs::prompt::ColorChooserWidget* m_chooser; // owned by the menu
};

} // namespace

DetailField* DetailField::make(style::Key key, QWidget& parent)
{
    const style::Entry& entry = style::entryOf(key);
    switch (entry.type) {
    case style::ValueType::Bool: return new SwitchField(key, new QCheckBox(&parent));
    case style::ValueType::Enumeration: return new ChoiceField(key, new QComboBox(&parent));
    case style::ValueType::Variable: return new VariableField(key, new QComboBox(&parent));
    case style::ValueType::Color: return new ColorField(key, new QToolButton(&parent));
    case style::ValueType::Text: return new TextField(key, new QLineEdit(&parent));
    case style::ValueType::Integer: return new NumberDetail(key, new ui::NumberField(0, &parent));
    default: break;
    }
    const bool isLimited = entry.maximum < style::kUnlimited;
    return new NumberDetail(
        key, new ui::NumberField(isLimited ? 2 : ui::NumberField::kSignificantDigits, &parent));
}

QIcon colorMapIcon(ColorMap_e map, const QSize& size)
{
    QPixmap picture(size);
    QPainter painter(&picture);
    const std::vector<host::Rgb> colors = plot::bandColors({map, false}, size.width());
    for (int x = 0; x < size.width(); ++x) {
        const host::Rgb& color = colors[static_cast<std::size_t>(x)];
        painter.fillRect(x, 0, 1, size.height(), QColor(color.red, color.green, color.blue));
    }
    return picture;
}

} // namespace corvala::app
