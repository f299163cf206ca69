#pragma once

#include <QLineEdit>

#include <functional>

/// A line edit that underlines its text in red as long as something is wrong with it, and tells
/// what in its tool tip. It takes every text all the same.
class CheckedLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;

    /// What is asked for each text: what is wrong with it, nothing where it is right.
    void setCheck(std::function<QString(const QString &)> faultOf);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void check();
    QRect textPlace() const;

    std::function<QString(const QString &)> m_faultOf;
};
