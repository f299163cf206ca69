#pragma once

#include <QMenu>
#include <QObject>
#include <QPoint>
#include <QStringList>

/// Uses every context menu that opens: clicks one of its entries, or closes it by Escape.
class MenuUser : public QObject
{
    Q_OBJECT

public:
    MenuUser();
    ~MenuUser() override;

    /// The entry that is clicked in the menus that open from now on; none for an empty text.
    void choose(const QString &entry) { m_entry = entry; }

    /// How many menus have opened, and what the last one offered and where it stood.
    int menuCount() const { return m_menuCount; }
    QStringList entries() const { return m_entries; }
    QPoint position() const { return m_position; }

    bool eventFilter(QObject *object, QEvent *event) override;

signals:
    /// A menu is up and not yet used.
    void shown(QMenu *menu);

private:
    void use(QMenu *menu);

    QString m_entry;
    int m_menuCount = 0;
    QStringList m_entries;
    QPoint m_position;
};
