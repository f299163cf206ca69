#pragma once

#include "codec/stringcodec.h"

#include <QDialog>
#include <QString>

#include <memory>

namespace Ui {
class DirectEditor;
}

/// A small dialog that edits one command in terms of a typed value and shows its hex bytes live.
///
/// The caller writes the four texts, calls loadFromMembers() and shows the dialog. After "ok" it
/// reads them back on SendData(). Every other way out leaves them as they were.
class DirectEditor : public QDialog
{
    Q_OBJECT

public:
    explicit DirectEditor(QWidget *parent = nullptr);
    ~DirectEditor() override;

    /// Fills the fields from the four texts and reads the bytes in the row's type.
    void loadFromMembers();

    /// In: the row's hex text. Out: the hex digits of the edited value, without blanks.
    QString editData;
    /// The command text.
    QString editCmd;
    /// The address text.
    QString editAddr;
    /// In: the row's type text. Out: the type list's item, for "string" the encoding list's.
    QString editType;

signals:
    /// "ok" was chosen and the four texts hold the result.
    void SendData();

    /// The value as typed now holds characters that the encoding does not have; they stand as "?"
    /// in the hex. The report is for a message box. It comes once, and again only after the value
    /// was free of such characters or another row was loaded.
    void unencodableTyped(const QString &report);

public slots:
    void on_originalDataChange();
    void on_lineEdit_originalData_textChanged();
    void on_pushButton_ok_clicked();
    void on_comboBox_dataType_currentIndexChanged();
    void on_comboBox_encode_currentIndexChanged();
    void on_pushButton_cancel_clicked();

protected:
    void showEvent(QShowEvent *event) override;

private:
    void connectFields();
    void showValueOfHex();
    void selectType(const QString &rowType);
    EncodedText encodedValue() const;
    void tellUnencodable(const QString &unencodable);
    StringEncoding encoding() const;
    int widthForValues() const;

    std::unique_ptr<Ui::DirectEditor> m_ui;
    bool m_unencodableTold = false;
};
