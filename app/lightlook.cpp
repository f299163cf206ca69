#include "app/lightlook.h"

#include <QApplication>
#include <QEvent>
#include <QIcon>
#include <QStyle>
#include <QWidget>

namespace {

const QColor paper(0xFF, 0xFF, 0xFF);
const QColor ground(0xEE, 0xF1, 0xF5);
const QColor ink(0x33, 0x33, 0x33);
const QColor caption(0x31, 0x3C, 0x61);
const QColor fadedInk(0x55, 0x5E, 0x72);
const QColor accent(0x00, 0x6F, 0xCF);
const QColor fadedAccent(0xA9, 0xCD, 0xF0);
const QColor tipPaper(0xFF, 0xFF, 0xDC);

void setGrounds(QPalette &palette)
{
    palette.setColor(QPalette::Window, ground);
    palette.setColor(QPalette::Base, paper);
    palette.setColor(QPalette::AlternateBase, QColor(0xF5, 0xF7, 0xFA));
    palette.setColor(QPalette::Button, QColor(0xF7, 0xF8, 0xFA));
    palette.setColor(QPalette::ToolTipBase, tipPaper);
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::Disabled, QPalette::Base, ground);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, fadedAccent);
}

void setEdges(QPalette &palette)
{
    palette.setColor(QPalette::Light, paper);
    palette.setColor(QPalette::Midlight, QColor(0xE3, 0xE7, 0xED));
    palette.setColor(QPalette::Mid, QColor(0xB4, 0xBB, 0xC7));
    palette.setColor(QPalette::Dark, QColor(0x7A, 0x83, 0x94));
    palette.setColor(QPalette::Shadow, fadedInk);
}

void setTexts(QPalette &palette)
{
    palette.setColor(QPalette::WindowText, caption);
    for (const auto role : {QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, ink);
    }
    palette.setColor(QPalette::BrightText, paper);
    palette.setColor(QPalette::HighlightedText, paper);
    palette.setColor(QPalette::PlaceholderText, fadedInk);
    palette.setColor(QPalette::Link, accent);
    palette.setColor(QPalette::LinkVisited, QColor(0x6A, 0x3F, 0xA0));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, fadedInk);
    }
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, caption);
}

/// Other styles of a dark desktop have colours of their own, whatever the palette says. The
/// native one of Windows is always light.
bool followsPalette(const QStyle &style)
{
    return style.inherits("QFusionStyle") || style.inherits("QWindowsVistaStyle");
}

void apply()
{
    if (!followsPalette(*QApplication::style())) {
        QApplication::setStyle(QStringLiteral("Fusion"));
    }
    QApplication::setPalette(lightPalette());
}

} // namespace

QPalette lightPalette()
{
    QPalette palette;
    setGrounds(palette);
    setEdges(palette);
    setTexts(palette);
    return palette;
}

LightLook::LightLook(QWidget &window)
    : QObject(&window)
{
    apply();
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/Image/tarnwick.png")));
    window.installEventFilter(this);
}

bool LightLook::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::ApplicationPaletteChange &&
        QApplication::palette() != lightPalette()) {
        // Not while the desktop's colours are still being handed round.
        QMetaObject::invokeMethod(this, &apply, Qt::QueuedConnection);
    }
    return QObject::eventFilter(object, event);
}
