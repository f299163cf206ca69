#pragma once

#include <QWidget>

#include <memory>

namespace Ui {
class MessageArea;
}
class LogTable;
class MessageLog;

/// The message log with its head, which says how full it is. F6 and Ctrl+Tab lead out of the table,
/// with Shift backwards, and so does Tab.
class MessageArea : public QWidget
{
    Q_OBJECT

public:
    explicit MessageArea(QWidget *parent = nullptr);
    ~MessageArea() override;

    /// Shows how full the log is, from now on. The window must have its style.
    void follow(const MessageLog &log);

    LogTable &table() const;

private:
    void showCount(int count);

    std::unique_ptr<Ui::MessageArea> m_form;
};
