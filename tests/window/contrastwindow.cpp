#include "contrastwindow.h"

#include "commands/unitlineedit.h"
#include "contrast.h"

#include <QApplication>
#include <QLabel>
#include <QTabBar>

namespace {

/// Both colours of these are fixed where they are disabled, busy or under the mouse.
bool isLinkOrLoopButton(const QWidget &widget)
{
    const QStringList names{"pushButton_OpenCom", "pushButton_ConnectHID", "pushButton_Start_Loop"};
    return names.contains(widget.objectName());
}

QString textOf(const QWidget &widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(&widget)) {
        return label->text();
    }
    if (const auto *button = qobject_cast<const QPushButton *>(&widget)) {
        return isLinkOrLoopButton(widget) ? QString() : button->text();
    }
    if (const auto *edit = qobject_cast<const QLineEdit *>(&widget)) {
        return edit->text();
    }
    if (const auto *box = qobject_cast<const QComboBox *>(&widget)) {
        return box->currentIndex() < 0 ? box->placeholderText() : box->currentText();
    }
    return {};
}

QString nameOf(const QWidget &widget)
{
    return widget.objectName().isEmpty() ? widget.metaObject()->className() : widget.objectName();
}

} // namespace

ContrastWindow::ContrastWindow()
{
    constexpr QSize usualSize(1120, 760);
    window().resize(usualSize);
    // A blinking cursor would count as text.
    find<QTabWidget>("tabWidget")->tabBar()->setFocus();
}

void ContrastWindow::openNothing()
{
    combo("comboBox_Comm")->clear();
    click("pushButton_OpenCom");
}

void makeDesktopDark()
{
    QPalette dark(QColor(0x31, 0x36, 0x3B), QColor(0x23, 0x26, 0x29));
    dark.setColor(QPalette::Base, QColor(0x1B, 0x1E, 0x20));
    dark.setColor(QPalette::ToolTipBase, QColor(0x31, 0x36, 0x3B));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                            QPalette::ToolTipText, QPalette::HighlightedText}) {
        dark.setColor(role, QColor(0xFC, 0xFC, 0xFC));
        dark.setColor(QPalette::Disabled, role, QColor(0x65, 0x68, 0x6A));
    }
    QApplication::setPalette(dark);
    for (const char *kind :
         {"QMenu", "QTipLabel", "QComboBox", "QAbstractItemView", "QMessageBox"}) {
        QApplication::setPalette(dark, kind);
    }
}

QRect textRoom(const QWidget &widget)
{
    constexpr int frame = 4;
    constexpr int arrow = 34;
    QRect room = widget.rect();
    if (qobject_cast<const QLabel *>(&widget) == nullptr) {
        room.adjust(frame, frame, -frame, -frame);
    }
    if (qobject_cast<const QComboBox *>(&widget) != nullptr) {
        room.setRight(widget.width() - arrow);
    }
    if (const auto *edit = qobject_cast<const QLineEdit *>(&widget)) {
        room.setRight(room.right() - edit->textMargins().right());
    }
    return room;
}

double contrastIn(const QWidget &widget, const QRect &room)
{
    QWidget &window = *widget.window();
    return textContrast(
        window.grab({widget.mapTo(&window, room.topLeft()), room.size()}).toImage());
}

QStringList unreadable(const QWidget &window)
{
    QStringList names;
    int texts = 0;
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        if (widget->window() != &window || !widget->isVisible() || textOf(*widget).isEmpty() ||
            qobject_cast<const UnitLineEdit *>(widget->parentWidget()) != nullptr) {
            continue;
        }
        ++texts;
        const double found = contrastIn(*widget, textRoom(*widget));
        if (found < readable) {
            names.append(nameOf(*widget) + ' ' + QString::number(found));
        }
    }
    return texts > 0 ? names : QStringList("no texts");
}
