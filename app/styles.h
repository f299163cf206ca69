#pragma once

#include <QString>

class QPushButton;

/// The look of the main window, for QDialog::setStyleSheet.
QString windowStyle();

/// The look of the line edit in which a custom baud rate is typed.
QString customBaudRateStyle();

/// Shows a link or loop button as idle (white) or busy (blue), with a caption.
void showIdle(QPushButton &button, const QString &caption);
void showBusy(QPushButton &button, const QString &caption);
