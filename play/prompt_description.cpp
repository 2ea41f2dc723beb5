// SPDX-License-Identifier: BSD-3-Clause
#include "play/prompt_description.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>

#include <algorithm>

namespace corvala::play {

using Json = nlohmann::json;

/// Longer lists are not described.
static constexpr int kMostItems = 1000;

static std::string withoutMnemonic(QString text)
{
    return text.remove(QLatin1Char('&')).toStdString();
}

/// Parts of another field, such as the line edit of a spin box, are no fields themselves.
static bool isInsideField(const QWidget& widget, const QWidget& prompt)
{
    for (const QWidget* parent = widget.parentWidget(); parent && parent != &prompt;
         parent = parent->parentWidget()) {
        if (qobject_cast<const QAbstractSpinBox*>(parent) || qobject_cast<const QComboBox*>(parent)
            || qobject_cast<const QAbstractItemView*>(parent))
            return true;
    }
    return false;
}

static bool isField(const QWidget& widget)
{
    return qobject_cast<const QLineEdit*>(&widget) || qobject_cast<const QAbstractSpinBox*>(&widget)
        || qobject_cast<const QComboBox*>(&widget)
        || qobject_cast<const QAbstractItemView*>(&widget)
        || qobject_cast<const QCheckBox*>(&widget);
}

QList<QWidget*> promptFields(const QWidget& prompt)
{
    QList<QWidget*> fields;
    for (QWidget* widget : prompt.findChildren<QWidget*>()) {
        if (isField(*widget) && widget->isVisible() && widget->window() == &prompt
            && !isInsideField(*widget, prompt))
            fields << widget;
    }
    std::stable_sort(fields.begin(), fields.end(), [&prompt](QWidget* one, QWidget* two) {
        const QPoint first = one->mapTo(const_cast<QWidget*>(&prompt), QPoint());
        const QPoint second = two->mapTo(const_cast<QWidget*>(&prompt), QPoint());
        return std::pair(first.y(), first.x()) < std::pair(second.y(), second.x());
    });
    return fields;
}

static QAbstractButton* buttonWithRole(const QWidget& prompt,
                                       std::initializer_list<QDialogButtonBox::ButtonRole> roles)
{
    for (const QDialogButtonBox* box : prompt.findChildren<QDialogButtonBox*>()) {
        for (QAbstractButton* button : box->buttons()) {
            if (std::find(roles.begin(), roles.end(), box->buttonRole(button)) != roles.end())
                return button;
        }
    }
    return nullptr;
}

QAbstractButton* acceptButton(const QWidget& prompt)
{
    return buttonWithRole(prompt, {QDialogButtonBox::AcceptRole, QDialogButtonBox::YesRole});
}

QAbstractButton* refuseButton(const QWidget& prompt)
{
    return buttonWithRole(prompt, {QDialogButtonBox::RejectRole, QDialogButtonBox::NoRole});
}

static int itemCountOf(const QWidget& field)
{
    if (const auto* combo = qobject_cast<const QComboBox*>(&field))
        return combo->count();
    const auto* view = qobject_cast<const QAbstractItemView*>(&field);
    return view && view->model() ? view->model()->rowCount() : 0;
}

QStringList itemsOf(const QWidget& field)
{
    QStringList items;
    if (const auto* combo = qobject_cast<const QComboBox*>(&field)) {
        for (int i = 0; i < combo->count(); ++i)
            items << combo->itemText(i);
    } else if (const auto* view = qobject_cast<const QAbstractItemView*>(&field)) {
        for (int row = 0; view->model() && row < view->model()->rowCount(); ++row)
            items << view->model()->index(row, 0).data().toString();
    }
    return items;
}

static Json valueOf(const QWidget& field)
{
    if (const auto* spin = qobject_cast<const QSpinBox*>(&field))
        return spin->value();
    if (const auto* spin = qobject_cast<const QDoubleSpinBox*>(&field))
        return spin->value();
    if (const auto* line = qobject_cast<const QLineEdit*>(&field))
        return line->text().toStdString();
    if (const auto* combo = qobject_cast<const QComboBox*>(&field))
        return combo->currentText().toStdString();
    if (const auto* box = qobject_cast<const QCheckBox*>(&field))
        return box->isChecked();
    const auto* view = qobject_cast<const QAbstractItemView*>(&field);
    return view ? view->currentIndex().data().toString().toStdString() : std::string();
}

/// One entry per field that has the property; a single one stands alone.
template<class Reader>
static void addFieldValues(Json& description, const char* key, const QList<QWidget*>& fields,
                           Reader read)
{
    Json values = Json::array();
    for (const QWidget* field : fields) {
        const Json value = read(*field);
        if (!value.is_null())
            values.push_back(value);
    }
    if (!values.empty())
        description[key] = values.size() == 1 ? values.front() : values;
}

static Json propertyOf(const QWidget& field, const char* name)
{
    const QVariant value = field.property(name);
    if (!value.isValid() || !field.inherits("QAbstractSpinBox"))
        return nullptr;
    return value.type() == QVariant::Int ? Json(value.toInt()) : Json(value.toDouble());
}

static std::vector<const QLabel*> labelsOf(const QWidget& prompt)
{
    std::vector<const QLabel*> labels;
    for (const QLabel* label : prompt.findChildren<QLabel*>()) {
        if (label->isVisible() && !label->text().isEmpty())
            labels.push_back(label);
    }
    return labels;
}

static void addTexts(Json& description, const QWidget& prompt)
{
    description["title"] = prompt.windowTitle().toStdString();
    Json labels = Json::array();
    for (const QLabel* label : labelsOf(prompt))
        labels.push_back(label->text().toStdString());
    if (const auto* box = qobject_cast<const QMessageBox*>(&prompt))
        description["label"] = box->text().toStdString();
    else if (const auto* input = qobject_cast<const QInputDialog*>(&prompt))
        description["label"] = input->labelText().toStdString();
    else if (!labels.empty())
        description["label"] = labels.front();
    description["labels"] = labels;
}

static void addButtons(Json& description, const QWidget& prompt)
{
    Json buttons = Json::array();
    for (const QPushButton* button : prompt.findChildren<QPushButton*>()) {
        if (!button->isVisible())
            continue;
        buttons.push_back(withoutMnemonic(button->text()));
        if (button->isDefault())
            description["default"] = buttons.back();
    }
    description["buttons"] = buttons;
}

Json describePrompt(const QWidget& prompt)
{
    Json description;
    addTexts(description, prompt);
    addButtons(description, prompt);
    const QList<QWidget*> fields = promptFields(prompt);
    addFieldValues(description, "value", fields, valueOf);
    addFieldValues(description, "min", fields,
                   [](const QWidget& field) { return propertyOf(field, "minimum"); });
    addFieldValues(description, "max", fields,
                   [](const QWidget& field) { return propertyOf(field, "maximum"); });
    addFieldValues(description, "decimals", fields,
                   [](const QWidget& field) { return propertyOf(field, "decimals"); });
    for (const QWidget* field : fields) {
        if (itemCountOf(*field) > kMostItems)
            continue;
        for (const QString& item : itemsOf(*field))
            description["items"].push_back(item.toStdString());
    }
    return description;
}

} // namespace corvala::play
