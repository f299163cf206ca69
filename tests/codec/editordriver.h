#pragma once

#include "codec/directeditor.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

/// An editor with the means to use it as a person does.
class EditorDriver
{
public:
    /// A widget of the editor; a name that it does not have ends the program.
    template<typename Widget>
    Widget *find(const char *name) const
    {
        auto *found = m_editor.findChild<Widget *>(QLatin1String(name));
        if (found == nullptr) {
            qFatal("no widget %s", name);
        }
        return found;
    }

    QLineEdit *command() const { return find<QLineEdit>("lineEdit_Od"); }
    QLineEdit *address() const { return find<QLineEdit>("lineEdit_Addr"); }
    QLineEdit *value() const { return find<QLineEdit>("lineEdit_originalData"); }
    QLineEdit *hex() const { return find<QLineEdit>("lineEdit_Data"); }
    QComboBox *types() const { return find<QComboBox>("comboBox_dataType"); }
    QComboBox *encodings() const { return find<QComboBox>("comboBox_encode"); }
    QPushButton *ok() const { return find<QPushButton>("pushButton_ok"); }
    QPushButton *cancel() const { return find<QPushButton>("pushButton_cancel"); }
    DirectEditor &editor() { return m_editor; }

    /// Loads a row of command 01 at address 0A10.
    void load(const QString &data, const QString &type);

    /// Shows the editor and waits until it is the active window.
    void show();

    /// Chooses an item of a list by the keyboard.
    void chooseType(const QString &item) const;
    void chooseEncoding(const QString &item) const;

    /// Types into the value field; characters that no key has come as from an input method.
    void type(const QString &text) const;

private:
    DirectEditor m_editor;
};
