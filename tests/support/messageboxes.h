#pragma once

#include <QMessageBox>
#include <QObject>
#include <QStringList>

/// Answers every message box that comes up, and remembers what they said.
class MessageBoxes : public QObject
{
    Q_OBJECT

public:
    MessageBoxes();
    ~MessageBoxes() override;

    /// The button that is pressed from now on where a box has it; otherwise its first one is.
    void answerWith(QMessageBox::StandardButton button) { m_answer = button; }

    /// What the boxes said so far, in order, without their titles.
    QStringList texts() const { return m_texts; }
    QStringList titles() const { return m_titles; }

    /// What has been said since the last call.
    QStringList takeTexts();

    bool eventFilter(QObject *object, QEvent *event) override;

signals:
    /// A box is up and not yet answered.
    void shown(const QString &text);

private:
    QMessageBox::StandardButton m_answer = QMessageBox::Ok;
    QStringList m_texts;
    QStringList m_titles;
};
