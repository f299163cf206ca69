#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <functional>

/// Says when what has changed is to be shown: at once after a quiet time, then once in a display
/// frame, however often it changes. Nobody reads faster, and each showing costs.
class DisplayPace : public QObject
{
    Q_OBJECT

public:
    /// How long a display frame is, in ms.
    static constexpr int usualFrameMs = 33;

    explicit DisplayPace(QObject *parent = nullptr, int frameMs = usualFrameMs);

    /// What is asked before anything is shown. While the answer is true, showing waits, but no
    /// longer than 50 ms.
    void setHold(std::function<bool()> hold);

    /// Something has changed; `due` follows, perhaps before this returns.
    void request();

signals:
    /// Now is the time to show it.
    void due();

private:
    void onFrame();
    bool isHeld();
    void show();

    int m_frameMs;
    QTimer m_frame;
    bool m_requested = false;
    std::function<bool()> m_hold;
    QElapsedTimer m_heldSince;
};
