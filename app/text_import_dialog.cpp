// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/text_import_dialog.h"

#include "app/help_reference.h"
#include "app/text_preview_table.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>

namespace corvala::app {

using host::io::ReadPurpose;
using host::io::TextPreview;
using host::io::TextProperty;

static constexpr int kLastLine = 1'000'000'000;
static constexpr int kDetected = -1; ///< of a number that is left to the reader

static constexpr char kWords[] = "words"; ///< that a button proposes

static QString shown(const char* text)
{
    return QCoreApplication::translate("TextDialect", text);
}

namespace {

/// A number that is left to the reader while the field is empty.
class OptionalNumber : public QSpinBox
{
public:
    using QSpinBox::QSpinBox;

    void fixup(QString& text) const override
    {
        if (text.isEmpty())
            text = QString::number(kDetected);
        else
            QSpinBox::fixup(text);
    }
};

} // namespace

TextImportDialog::TextImportDialog(const host::io::ReadRequest& request, const TextPreview& preview,
                                   QWidget* parent)
    : QDialog(parent)
    , m_request(request)
    , m_note(new QLabel(this))
    , m_table(new TextPreviewTable(this))
{
    setHelpReference(*this, QStringLiteral("formats.html#tables"));
    setWindowTitle(tr("Import %1").arg(QFileInfo(QString::fromStdString(preview.file)).fileName()));
    m_note->setWordWrap(true);
    m_note->setTextFormat(Qt::PlainText);
    auto* form = new QFormLayout;
    addFields(*form);
    auto* right = new QVBoxLayout;
    right->addWidget(m_note);
    auto* hint = new QLabel(tr("&Preview (click a title, or press Return in a column, to say what "
                               "the column holds):"),
                            this);
    hint->setBuddy(m_table);
    right->addWidget(hint);
    right->addWidget(m_table, 1);
    auto* both = new QHBoxLayout;
    both->addLayout(form);
    both->addLayout(right, 1);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Open | QDialogButtonBox::Cancel);
    m_open = buttons->button(QDialogButtonBox::Open);
    m_open->setText(tr("&Open"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(both, 1);
    layout->addWidget(buttons);
    connect(m_table, &TextPreviewTable::kindChosen, this, &TextImportDialog::takeKind);
    connect(&m_reader, &host::io::DataReader::finished, this, &TextImportDialog::takeResult);
    setTabOrder(m_fields.back().widget, m_table);
    m_fields.front().widget->setFocus();
    resize(1000, 600);
    showPreview(preview);
}

void TextImportDialog::addFields(QFormLayout& form)
{
    for (const TextProperty& property : host::io::textProperties()) {
        if (property.form == TextProperty::Form::Columns) // in the titles of the preview
            continue;
        QWidget* const field = makeField(property);
        field->setObjectName(QLatin1String(property.key));
        form.addRow(shown(property.label), field);
        m_fields.push_back({&property, field});
        if (auto* const text = qobject_cast<QLineEdit*>(field))
            addProposal(form, *text);
    }
}

/// A button below the field for missing values, shown while there is something to propose.
void TextImportDialog::addProposal(QFormLayout& form, QLineEdit& missing)
{
    m_missing = new QPushButton(this);
    m_missing->setAutoDefault(false);
    m_missing->hide();
    form.addRow(QString(), m_missing);
    connect(m_missing, &QPushButton::clicked, this, [this, &missing] {
        missing.setText(
            (missing.text() + QLatin1Char(' ') + m_missing->property(kWords).toString()).trimmed());
        missing.setFocus();
        Q_EMIT missing.editingFinished();
    });
}

QWidget* TextImportDialog::makeField(const TextProperty& property)
{
    const QString word = QString::fromStdString(property.word(property, m_request.text));
    if (property.form == TextProperty::Form::Choice) {
        auto* choice = new QComboBox(this);
        choice->addItem(tr("detect"));
        for (const TextProperty::Choice& each : property.choices)
            choice->addItem(shown(each.label), QLatin1String(each.word));
        choice->setCurrentIndex(std::max(0, word.isEmpty() ? 0 : choice->findData(word)));
        connect(choice, QOverload<int>::of(&QComboBox::activated), this, [this, choice, &property] {
            take(property, choice->currentData().toString().toStdString());
        });
        return choice;
    }
    if (property.form == TextProperty::Form::Text) {
        auto* text = new QLineEdit(word, this);
        text->setPlaceholderText(tr("words, such as -999"));
        connect(text, &QLineEdit::editingFinished, this,
                [this, text, &property] { take(property, text->text().toStdString()); });
        return text;
    }
    auto* number = new OptionalNumber(this);
    number->setRange(kDetected, kLastLine);
    number->setKeyboardTracking(false);
    number->setValue(word.isEmpty() ? kDetected : word.toInt());
    connect(number, QOverload<int>::of(&QSpinBox::valueChanged), this,
            [this, &property](int value) {
                take(property, value == kDetected ? std::string() : std::to_string(value));
            });
    return number;
}

void TextImportDialog::take(const TextProperty& property, const std::string& word)
{
    if (property.word(property, m_request.text) == word)
        return;
    property.set(property, word, m_request.text);
    refresh();
}

void TextImportDialog::takeKind(const QVector<int>& columns,
                                std::optional<host::io::TextColumnKind> kind)
{
    for (const int column : columns) {
        if (kind)
            m_request.text.columns[column] = *kind;
        else
            m_request.text.columns.erase(column);
    }
    refresh();
}

/// Asks the reading program for the preview, after the one that is being made.
void TextImportDialog::refresh()
{
    m_isStale = m_reader.isRunning();
    if (m_isStale)
        return;
    host::io::ReadRequest request = m_request;
    request.purpose = ReadPurpose::Preview;
    m_reader.start(request);
}

void TextImportDialog::takeResult(const host::io::ReadResult& result)
{
    if (m_isStale)
        return refresh();
    if (result.preview)
        return showPreview(*result.preview);
    m_note->setText(result.error);
    m_open->setEnabled(false);
}

/// Return in a field shows what it brings; only the next one opens the file.
void TextImportDialog::keyPressEvent(QKeyEvent* event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && m_reader.isRunning())
        event->accept();
    else
        QDialog::keyPressEvent(event);
}

/// Lines of the rows that cannot be read.
static QVector<qint64> badLines(const TextPreview& preview)
{
    QVector<qint64> lines;
    for (const TextPreview::Row& row : preview.rows)
        if (row.role == TextPreview::Role::Bad)
            lines << row.line;
    return lines;
}

static bool hasColumns(const TextPreview& preview)
{
    return std::any_of(
        preview.kinds.begin(), preview.kinds.end(),
        [](host::io::TextColumnKind kind) { return kind != host::io::TextColumnKind::Skipped; });
}

QString TextImportDialog::noteOn(const TextPreview& preview) const
{
    QStringList notes;
    if (m_request.files.size() > 1)
        notes << tr("This is one of %n files; the choices hold for all of them.", nullptr,
                    m_request.files.size());
    if (preview.columns.empty())
        notes << tr("No table is seen in this way.");
    else if (!hasColumns(preview))
        notes << tr("All columns are left out.");
    else if (!preview.isSure)
        notes << tr("This can be meant in several ways: please check the columns.");
    if (preview.columns.size() > TextPreviewTable::kMostColumns)
        notes << tr("The first %1 of %2 columns are shown.")
                     .arg(TextPreviewTable::kMostColumns)
                     .arg(preview.columns.size());
    if (const QVector<qint64> bad = badLines(preview); !bad.isEmpty())
        notes << tr("Of these rows, %n cannot be read, the first in line %1.", nullptr, bad.size())
                     .arg(bad.front());
    return notes.join(QLatin1Char(' '));
}

/// What was detected, where nothing is chosen.
void TextImportDialog::showDetected(const host::io::TextDialect& dialect)
{
    for (const Field& field : m_fields) {
        const TextProperty& property = *field.property;
        const std::string word = property.word(property, dialect);
        QString detected = QString::fromStdString(word);
        for (const TextProperty::Choice& choice : property.choices)
            if (word == choice.word)
                detected = shown(choice.label);
        const QString text = detected.isEmpty() ? tr("detect") : tr("detected: %1").arg(detected);
        if (auto* const choice = qobject_cast<QComboBox*>(field.widget)) {
            if (choice->currentIndex() == 0)
                choice->setItemText(0, text);
        } else if (auto* const number = qobject_cast<QSpinBox*>(field.widget)) {
            if (number->value() == kDetected)
                number->setSpecialValueText(text);
        }
    }
}

void TextImportDialog::showPreview(const TextPreview& preview)
{
    showDetected(preview.dialect);
    m_note->setText(noteOn(preview));
    QStringList sentinels;
    for (const std::string& word : preview.sentinels)
        sentinels << QString::fromStdString(word);
    m_missing->setProperty(kWords, sentinels.join(QLatin1Char(' ')));
    m_missing->setText(tr("&Take %1 as Missing").arg(sentinels.join(QStringLiteral(", "))));
    m_missing->setVisible(!sentinels.isEmpty());
    m_table->showPreview(preview, m_request.text.columns);
    m_open->setEnabled(hasColumns(preview));
}

} // namespace corvala::app
