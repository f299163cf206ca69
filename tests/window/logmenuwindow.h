#pragma once

#include "menuuser.h"
#include "windowdriver.h"

#include <QStringList>
#include <QVector>

#include <optional>

inline const QString goToCommand = QStringLiteral("&Go to its command");

/// A window and somebody who uses the context menu of its log.
class LogMenuWindow : public WindowDriver
{
public:
    LogMenuWindow();

    QTableWidget *log() const { return messages(); }

    /// A menu that closes leaves no window active here.
    void becomeActive();

    /// Rows 0 to 3: sent, received, stray, an event.
    void addRecords() const;

    /// Selects these rows and no others, and gives the log the keys.
    void select(const QVector<int> &rows) const;

    /// Opens the menu of a row; it has been used when this returns.
    void rightClick(int row) const;

    /// What the menu of a row lets one choose.
    QStringList enabledEntries(int row);

    /// Without it, menus stay open.
    std::optional<MenuUser> menus{std::in_place};
};
