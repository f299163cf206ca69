#pragma once

#include <QWidget>

#include <memory>

namespace Ui {
class MessageArea;
}
class LogTable;
class MessageLog;
class QShortcut;

/// The message log with its head, which says how full it is, and whether it is held. F6 and
/// Ctrl+Tab lead out of the table, with Shift backwards, and so does Tab.
///
/// Ctrl+F opens a field in the head. The rows that match what is typed there are shown and counted,
/// the others are hidden, until Escape closes it. Enter leads to the rows.
class MessageArea : public QWidget
{
    Q_OBJECT

public:
    explicit MessageArea(QWidget *parent = nullptr);
    ~MessageArea() override;

    /// Shows how the log is, and finds in it, from now on. The window must have its style.
    void follow(MessageLog &log);

    /// Opens the field in which is typed what is looked for.
    void openFind();

    LogTable &table() const;

private:
    void setUpFind();
    void find(const QString &typed);
    void closeFind();
    void goToFound();
    void showCounts();
    static QString fillText(int count);
    static QString findText(int matching, int count);

    std::unique_ptr<Ui::MessageArea> m_form;
    MessageLog *m_log = nullptr;
    QShortcut *m_closingKey;
};
