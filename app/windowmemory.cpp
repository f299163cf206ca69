#include "app/windowmemory.h"

#include "files/filesaver.h"
#include "system/filereader.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QSplitter>

#include <utility>

namespace {

constexpr qint64 longestFile = 65536;

QVector<QRect> screenRooms()
{
    QVector<QRect> rooms;
    // The primary screen is the first one.
    for (const QScreen *screen : QGuiApplication::screens()) {
        rooms.append(screen->availableGeometry());
    }
    return rooms;
}

} // namespace

WindowMemory::WindowMemory(QWidget &window, QSplitter &splitter, QString path, QObject *parent)
    : QObject(parent)
    , m_window(window)
    , m_splitter(splitter)
    , m_path(std::move(path))
{
    m_splitter.installEventFilter(this);
}

void WindowMemory::restore()
{
    m_place = parseWindowPlace(readFile(m_path, longestFile).bytes);
    if (m_place.inside.isValid()) {
        m_window.setGeometry(broughtOntoScreens(m_place.inside, screenRooms()));
    } else {
        const QSize screen = m_window.screen()->availableGeometry().size();
        m_window.resize(firstWindowSize(m_window.size(), screen));
    }
    if (m_place.maximized) {
        m_window.setWindowState(m_window.windowState() | Qt::WindowMaximized);
    }
}

void WindowMemory::save()
{
    m_place.maximized = m_window.isMaximized();
    const QRect inside = m_place.maximized ? m_window.normalGeometry() : m_window.geometry();
    if (inside.isValid()) {
        m_place.inside = inside;
    }
    const QList<int> areas = m_splitter.sizes();
    if (areas.size() == splitterAreas && !areas.contains(0)) {
        m_place.splitter = areas;
    }
    saveFile(m_path, formatWindowPlace(m_place));
}

bool WindowMemory::eventFilter(QObject *object, QEvent *event)
{
    // A splitter divides the room that it has, so it must have got it first.
    if (object == &m_splitter && event->type() == QEvent::Show && !m_place.splitter.isEmpty()) {
        m_splitter.setSizes(m_place.splitter);
        m_place.splitter.clear();
    }
    return QObject::eventFilter(object, event);
}
