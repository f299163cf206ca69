#include "app/windowplace.h"

#include "files/initext.h"

#include <QHash>
#include <QMargins>
#include <QRegion>

#include <algorithm>
#include <limits>

namespace {

constexpr int farthest = 32767;
constexpr int mostRepeats = std::numeric_limits<int>::max();
const QByteArray group = "[window]";

/// A title bar and the borders at the other sides, as wide as desktops make them.
constexpr QMargins frame(8, 32, 8, 8);

using Entries = QHash<QByteArray, QByteArray>;

Entries entriesOf(const QByteArray &text)
{
    Entries entries;
    bool inGroup = false;
    for (const QByteArray &untrimmed : text.split('\n')) {
        const QByteArray line = untrimmed.trimmed();
        const int sign = line.indexOf('=');
        if (line.startsWith('[')) {
            inGroup = line == group;
        } else if (inGroup && sign > 0) {
            entries.insert(line.left(sign), line.mid(sign + 1));
        }
    }
    return entries;
}

std::optional<int> numberIn(const QByteArray &text, int least, int most = farthest)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (!isNumber || number < least || number > most) {
        return std::nullopt;
    }
    return number;
}

QRect insideOf(const Entries &entries)
{
    const auto x = numberIn(entries.value("x"), -farthest);
    const auto y = numberIn(entries.value("y"), -farthest);
    const auto width = numberIn(entries.value("width"), 1);
    const auto height = numberIn(entries.value("height"), 1);
    return x && y && width && height ? QRect(*x, *y, *width, *height) : QRect();
}

QList<int> splitterOf(const Entries &entries)
{
    QList<int> areas;
    for (const QByteArray &text : entries.value("splitter").split(',')) {
        if (const auto area = numberIn(text, 1)) {
            areas.append(*area);
        }
    }
    return areas.size() == splitterAreas ? areas : QList<int>();
}

/// What the entry "time" says. What it doesn't know is as if it were missing.
const QHash<QByteArray, ShownTime> shownTimes{{"since", ShownTime::SinceRowBefore},
                                              {"day", ShownTime::OfDay},
                                              {"nothing", ShownTime::Nothing}};

QByteArray recentFileKey(int place)
{
    return "file" + QByteArray::number(place);
}

QStringList recentFilesOf(const Entries &entries)
{
    QStringList files;
    for (int place = 1; entries.contains(recentFileKey(place)); ++place) {
        const QString file = iniText(entries.value(recentFileKey(place))).value_or(QString());
        if (!file.isEmpty()) {
            files.append(file);
        }
    }
    return files;
}

QByteArray entry(const QByteArray &key, int value)
{
    return key + '=' + QByteArray::number(value) + '\n';
}

int areaOf(const QRect &rect)
{
    return rect.width() * rect.height();
}

QRect movedInto(const QRect &screen, const QRect &place)
{
    QRect moved(place.topLeft(), place.size().boundedTo(screen.size()));
    moved.moveRight(std::min(moved.right(), screen.right()));
    moved.moveBottom(std::min(moved.bottom(), screen.bottom()));
    moved.moveLeft(std::max(moved.left(), screen.left()));
    moved.moveTop(std::max(moved.top(), screen.top()));
    return moved;
}

} // namespace

WindowPlace parseWindowPlace(const QByteArray &text)
{
    const Entries entries = entriesOf(text);
    WindowPlace place;
    place.inside = insideOf(entries);
    place.maximized = entries.value("maximized") == "1";
    place.splitter = splitterOf(entries);
    place.recordings = QString::fromUtf8(entries.value("recordings"));
    place.repeat = numberIn(entries.value("repeat"), 1, mostRepeats).value_or(0);
    place.shownTime = shownTimes.value(entries.value("time"), ShownTime::SinceRowBefore);
    place.recentFiles = recentFilesOf(entries);
    place.reopens = entries.value("reopen") == "1";
    return place;
}

QByteArray formatWindowPlace(const WindowPlace &place)
{
    QByteArray text = group + '\n';
    if (place.inside.isValid()) {
        text += entry("x", place.inside.x()) + entry("y", place.inside.y()) +
                entry("width", place.inside.width()) + entry("height", place.inside.height());
    }
    text += entry("maximized", place.maximized ? 1 : 0);
    if (place.splitter.size() == splitterAreas) {
        text += "splitter=" + QByteArray::number(place.splitter.at(0)) + ',' +
                QByteArray::number(place.splitter.at(1)) + '\n';
    }
    const QByteArray recordings = place.recordings.toUtf8();
    // A folder whose name breaks the line, or begins with a blank, would come back as another one.
    if (!recordings.isEmpty() && !recordings.contains('\n') && recordings == recordings.trimmed()) {
        text += "recordings=" + recordings + '\n';
    }
    if (place.repeat > 0) {
        text += entry("repeat", place.repeat);
    }
    if (place.shownTime != ShownTime::SinceRowBefore) {
        text += "time=" + shownTimes.key(place.shownTime) + '\n';
    }
    if (place.reopens) {
        text += entry("reopen", 1);
    }
    for (int i = 0; i < place.recentFiles.size(); ++i) {
        text += recentFileKey(i + 1) + '=' + iniValue(place.recentFiles.at(i)) + '\n';
    }
    return text;
}

QSize firstWindowSize(QSize preferred, QSize screen)
{
    return preferred.boundedTo(QRect(QPoint(), screen).marginsRemoved(frame).size());
}

QRect broughtOntoScreens(const QRect &place, const QVector<QRect> &screens)
{
    QRegion covered;
    QRect best = screens.value(0);
    for (const QRect &screen : screens) {
        covered += screen;
        if (areaOf(screen & place) > areaOf(best & place)) {
            best = screen;
        }
    }
    const bool showsAll = (QRegion(place) - covered).isEmpty();
    return showsAll || best.isNull() ? place : movedInto(best.marginsRemoved(frame), place);
}
