#pragma once

#include <QLineEdit>

class QHBoxLayout;
class QPushButton;

/// A line edit that shows the unit of its value at its right end.
class UnitLineEdit : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(QString unit READ unit WRITE setUnit)

public:
    explicit UnitLineEdit(QWidget *parent = nullptr);

    QString unit() const;

    /// Shows the unit and keeps the typed text clear of it. An empty unit changes nothing.
    void setUnit(const QString &unit);

private:
    QPushButton *m_unit;
    QHBoxLayout *m_layout;
};
