// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QWidget>

#include <memory>
#include <string>

class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace corvala::sdk::ui::propertymanager {
class MapSelectionByPatternPropertiesManager;
}

namespace corvala::sdk::ui::dialogs {

/// What a pattern is compared with.
enum SelectOption_s : int {
    SelectOption_None = 0, ///< with nothing: the selection is cleared
    SelectOption_Names = 1,
    SelectOption_Groups = 2
};

namespace uicontrols {

/// One line under a table that selects rows by a pattern. It does no matching: it sends the
/// pattern, and lets it be sent again with the same option only after it was edited or the
/// selection was changed.
class MapSelectionByPattern : public QWidget
{
    Q_OBJECT

public:
    explicit MapSelectionByPattern(QWidget* parent = nullptr);
    ~MapSelectionByPattern() override;

    propertymanager::MapSelectionByPatternPropertiesManager& propertiesManager();
    QPushButton& applyButton() { return *m_applyButton; }
    QPushButton& groupsButton() { return *m_groupsButton; }

    /// Tells beside the buttons how many rows are selected; after a pattern, also how many it
    /// found.
    void showCounts(int selectedRows, int rows);
    /// Whether the last pattern found nothing, as long as the selection is not changed by hand.
    void setFoundNothing(bool isSo) { m_foundNothing = isSo; }

    void setLeastWidths(); ///< for narrow screens

    /// Puts the fields behind a widget of the same window in the order of the Tab key.
    void setTabOrderAfter(QWidget& widget);

Q_SIGNALS:
    /// The pattern, in UTF-8.
    void patternChanged(std::string const& pattern, SelectOption_s option);

private Q_SLOTS:
    void applyPattern();
    void applyPatternToGroups();
    void clearPattern();

public Q_SLOTS:
    /// To be called when the selection was changed by hand.
    void selectionChanged();

private:
    struct Bindings;

    void setupUi();
    QPushButton* addButton(QHBoxLayout& layout, const char* objectName, const QString& text);
    void send(SelectOption_s option);

    QLabel* m_label;
    QLineEdit* m_lineEdit;
    QPushButton* m_applyButton;
    QPushButton* m_groupsButton;
    QPushButton* m_clearButton;
    QLabel* m_counts;
    bool m_foundNothing = false;
    std::unique_ptr<propertymanager::MapSelectionByPatternPropertiesManager> m_properties;
    std::unique_ptr<Bindings> m_bindings;
};

} // namespace uicontrols
} // namespace corvala::sdk::ui::dialogs

Q_DECLARE_METATYPE(corvala::sdk::ui::dialogs::SelectOption_s)
