#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QUrl>

class QDropEvent;
class QWidget;

/// What is to be done with things that were dropped.
struct DroppedFile
{
    /// The command file to load; empty where there is none.
    QString path;
    /// Why there is none, in words for the user.
    QString refusal;
};

/// One file of this computer whose name ends in ".txt" is a command file; all else is refused.
DroppedFile commandFileAmong(const QList<QUrl> &dropped);

/// Takes the files that are dropped anywhere on a window, also over fields that would take their
/// names as text. All else that is dropped goes where it was dropped.
class FileDrop : public QObject
{
    Q_OBJECT

public:
    explicit FileDrop(QWidget &window);

    bool eventFilter(QObject *object, QEvent *event) override;

signals:
    /// Told from the event loop, when whoever dropped it isn't kept waiting any more.
    void dropped(const QList<QUrl> &urls);

private:
    bool take(QDropEvent &event);

    QWidget &m_window;
};
