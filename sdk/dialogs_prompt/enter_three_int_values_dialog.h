// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QDialog>

#include <array>

class QLabel;
class QPushButton;
class QSpinBox;

namespace corvala::dialogs::common {
class LaunchHelpAction;
}

namespace corvala::dialogs::prompt {

/// Asks for three integers. Set title, labels, help, ranges and values, then exec(). Return in a
/// field with a value out of range shows the nearest one inside and does not accept yet.
class EnterThreeIntValuesDialog : public QDialog
{
    Q_OBJECT

public:
    /// Smallest and largest value accepted.
    struct Range
    {
        int minimum;
        int maximum;
    };

    /// The shared instance, on that parent (null: the main window). Made again when its parent
    /// died or is another one.
    static EnterThreeIntValuesDialog& getInstance(QWidget* parent);

    void setTitle(const QString& title);
    /// Labels with their mnemonics, such as "&I skip".
    void setLabels(const QString& first, const QString& second, const QString& third);
    /// An empty reference takes the Help button away.
    void setHelpReference(const QString& reference);
    void setRanges(Range first, Range second, Range third);
    /// A value outside its range becomes the nearest one inside: set the ranges first.
    void setValues(int first, int second, int third);

    /// QDialog::Accepted or Rejected. Opens with the first value selected.
    int exec() override;

    /// The three values as they are entered.
    std::array<int, 3> values() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit EnterThreeIntValuesDialog(QWidget* parent);

    void updateOkButton();

    std::array<QLabel*, 3> m_labels;
    std::array<QSpinBox*, 3> m_spinBoxes;
    QPushButton* m_okButton;
    QPushButton* m_helpButton;
    common::LaunchHelpAction* m_helpAction = nullptr;
};

} // namespace corvala::dialogs::prompt
