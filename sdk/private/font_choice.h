// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QObject>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QWidget;

namespace corvala::dialogs::prompt {

/// The fields for the font of character symbols: the base font of the plot, or another one.
class FontChoice : public QObject
{
    Q_OBJECT

public:
    explicit FontChoice(QWidget* parent);

    void addTo(QFormLayout& form); ///< two rows

    void setUseBaseFont(bool useBaseFont);
    void setFontOverride(int fontOverride); ///< FontOverride_e; others count as none
    void setEnabled(bool enabled);

    bool useBaseFont() const;
    int fontOverride() const; ///< FontOverride_e; kept while the base font is used

Q_SIGNALS:
    void useBaseFontClicked(bool useBaseFont); ///< by the user
    void fontOverrideActivated(int fontOverride); ///< by the user

private:
    void updateEnabled();

    QCheckBox* m_useBaseFont;
    QLabel* m_fontLabel;
    QComboBox* m_font;
    bool m_isEnabled = true;
};

} // namespace corvala::dialogs::prompt
