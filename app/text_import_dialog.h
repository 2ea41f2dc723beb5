// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/io/data_reader.h"

#include <QDialog>

#include <vector>

class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace corvala::app {

class TextPreviewTable;

/// Asks how tables of text are written: shows what was detected, and the first lines as they would
/// be read with what is chosen instead.
class TextImportDialog : public QDialog
{
    Q_OBJECT

public:
    TextImportDialog(const host::io::ReadRequest& request, const host::io::TextPreview& preview,
                     QWidget* parent);

    /// The request with the dialect that was chosen.
    const host::io::ReadRequest& request() const { return m_request; }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    /// The field of a property: a choice among words, a number or a text.
    struct Field
    {
        const host::io::TextProperty* property;
        QWidget* widget; // not owned
    };

    void addFields(QFormLayout& form);
    QWidget* makeField(const host::io::TextProperty& property);
    void take(const host::io::TextProperty& property, const std::string& word);
    /// What columns hold; none leaves it to the reader.
    void takeKind(const QVector<int>& columns, std::optional<host::io::TextColumnKind> kind);
    void refresh();
    void takeResult(const host::io::ReadResult& result);
    void addProposal(QFormLayout& form, QLineEdit& missing);
    QString noteOn(const host::io::TextPreview& preview) const;
    void showDetected(const host::io::TextDialect& dialect);
    void showPreview(const host::io::TextPreview& preview);

    host::io::ReadRequest m_request;
    host::io::DataReader m_reader;
    bool m_isStale = false; ///< the preview that is being made is of another dialect
    std::vector<Field> m_fields;
    QLabel* m_note; // not owned, nor are those below
    TextPreviewTable* m_table;
    QPushButton* m_missing = nullptr; ///< takes the numbers that look like missing values as such
    QPushButton* m_open;
};

} // namespace corvala::app
