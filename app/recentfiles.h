#pragma once

#include <QMenu>
#include <QObject>
#include <QStringList>

class QPushButton;

/// How many files are listed.
constexpr int mostRecentFiles = 10;

/// The files with that one at their beginning; it stands there once, and the oldest ones go.
QStringList withRecentFile(const QStringList &files, const QString &path);

/// A file in the menu: its place, from 0, as a digit to press, its name, and its folder.
QString recentFileText(int place, const QString &path);

/// The command files that were loaded or saved last, in a menu at the button that loads.
class RecentFiles : public QObject
{
    Q_OBJECT

public:
    /// The button must outlive this. Ctrl+R anywhere in its window opens the menu, as long as the
    /// button is enabled.
    explicit RecentFiles(QPushButton &loadButton, QObject *parent = nullptr);

    /// The last one comes first.
    QStringList files() const { return m_files; }
    void setFiles(const QStringList &files) { m_files = files.mid(0, mostRecentFiles); }

    /// This file was loaded or saved.
    void note(const QString &path);

    /// Opens the menu; files that are gone can't be chosen.
    void showMenu();

signals:
    void chosen(const QString &path);

    /// Another file comes first.
    void changed(const QStringList &files);

private:
    void fillMenu();

    QPushButton &m_button;
    QMenu m_menu;
    QStringList m_files;
};
