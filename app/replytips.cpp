#include "app/replytips.h"

#include "app/commandarea.h"
#include "commands/commandcolumns.h"
#include "commands/commandtable.h"
#include "session/replymeter.h"

#include <QModelIndex>

void showReplyTimes(CommandArea &area, const CommandTable &rows, const ReplyMeter &replies)
{
    area.setCellRemark([&rows, &replies](const QModelIndex &cell) {
        return cell.column() == CommandColumn::Send
                   ? rowRepliesText(replies.of(rows.row(cell.row()).id))
                   : QString();
    });
}
