// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/base/types.h>

#include <QDialog>

class QLineEdit;
class QListView;
class QPushButton;
class QTimer;

namespace corvala::dialogs::common {
class NumberedNameListModel;
}

namespace corvala::dialogs::prompt {

/// Asks for one of the enabled zones of the active frame; stays quick with 100,000 of them.
class ZoneSelectDialog : public QDialog
{
    Q_OBJECT

public:
    /// The shared instance, on that parent (null: the main window). Made again when its parent
    /// died or is another one.
    static ZoneSelectDialog& getInstance(QWidget* parent);
    ~ZoneSelectDialog() override;

    /// Shows the dialog with a zone chosen (0: none) and waits. False when the user cancelled.
    bool selectZone(CvlInt64 current);

    /// Number of the zone that the user accepted last; 0 before the first.
    CvlInt64 selectedZone() const { return m_selectedZone; }

    void done(int result) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit ZoneSelectDialog(QWidget* parent);
    void applyFilter();
    void updateOkButton();
    void makeCurrent(int row);
    CvlInt64 currentZone() const;

    common::NumberedNameListModel* m_model;
    QLineEdit* m_filter;
    QListView* m_list;
    QPushButton* m_okButton;
    QTimer* m_filterTimer;
    CvlInt64 m_selectedZone = 0;
};

} // namespace corvala::dialogs::prompt
