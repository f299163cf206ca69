#include "styles.h"

#include <QPushButton>

namespace {

const char *const idleButtonStyle =
    "QPushButton{background: #FFFFFF;border: 2px solid #d9dfe7;border-radius: 4px;color: #333333;}"
    "QPushButton:hover{background: #0090ff;border-radius: 4px;color: #fefefe;}"
    "QPushButton:disabled{background: #cccccc;color:#666666}";

const char *const busyButtonStyle =
    "QPushButton{background: #0090ff;border: 2px solid #d9dfe7;border-radius: 4px;color: #fefefe;}"
    "QPushButton:hover{background: #0090ff;border-radius: 4px;color: #fefefe;}"
    "QPushButton:disabled{background: #cccccc;color:#666666}";

const char *const customBaudRateEditStyle = "QLineEdit{border-radius: 4px;border:none;}";

const char *const dialogStyle = R"(
QDialog { background: #eef1f5; }
QLabel { color: #313c61; }
#commandArea > #label, #messageArea > #label_11 { color: #001560; font-size: 16px; font-weight: bold; }
QTabWidget::pane { background: #ffffff; border: 1px solid #d9dfe7; border-radius: 4px; }
QTabBar::tab {
    background: #d9dfe7; color: #313c61; min-width: 80px; min-height: 32px; margin-right: 4px;
    border-top-left-radius: 4px; border-top-right-radius: 4px;
}
QTabBar::tab:selected { background: #0090ff; color: #fefefe; }
QTabBar::tab:focus { font-weight: bold; }
QTabBar::tab:disabled { color: #8a93a6; }
QPushButton {
    background: #ffffff; border: 2px solid #d9dfe7; border-radius: 4px; color: #333333;
    padding: 0px 8px;
}
QPushButton:hover { background: #0090ff; color: #fefefe; }
#pushButton_LoadCommand:hover, #pushButton_SaveCommand:hover, #pushButton_ClearCommand:hover {
    background: #d9eeff;
}
QPushButton:focus { border-color: #0090ff; }
QPushButton:disabled { background: #cccccc; color: #666666; }
QComboBox, QLineEdit {
    background: #ffffff; border: 1px solid rgba(51,51,51,0.30); border-radius: 4px;
    padding-left: 8px; color: #333333; selection-background-color: #0090ff;
}
QComboBox:focus, QLineEdit:focus { border: 1px solid #0090ff; }
QComboBox:disabled, QLineEdit:disabled { background: #eef1f5; color: #8a93a6; }
QComboBox::drop-down { border: none; width: 26px; }
QComboBox::down-arrow {
    width: 21px; height: 11px; right: 7px; image: url(:/Image/ComboBox-downArrow.png);
}
QComboBox QAbstractItemView { background-color: #ffffff; }
QCheckBox::indicator { width: 26px; height: 26px; }
QCheckBox::indicator:unchecked { image: url(:/Image/Checkbox_uncheck.png); }
QCheckBox::indicator:unchecked:hover, QCheckBox::indicator:unchecked:focus {
    image: url(:/Image/Checkbox_uncheck_hover.png);
}
QCheckBox::indicator:checked { image: url(:/Image/Checkbox_check.png); }
QCheckBox::indicator:checked:hover, QCheckBox::indicator:checked:focus {
    image: url(:/Image/Checkbox_check_hover.png);
}
QTableWidget { outline: 1px solid #0090ff; }
QTableWidget QLineEdit { padding-left: 2px; border-radius: 0px; }
QTableWidget QPushButton { padding: 0px; border: 1px solid transparent; }
QTableWidget QPushButton:focus { border-color: #0090ff; }
UnitLineEdit { font-family: Arial; font-size: 16px; }
UnitLineEdit QPushButton { padding: 0px; }
)";

} // namespace

QString windowStyle()
{
    return QLatin1String(dialogStyle);
}

QString customBaudRateStyle()
{
    return QLatin1String(customBaudRateEditStyle);
}

void showIdle(QPushButton &button, const QString &caption)
{
    button.setText(caption);
    button.setStyleSheet(QLatin1String(idleButtonStyle));
}

void showBusy(QPushButton &button, const QString &caption)
{
    button.setText(caption);
    button.setStyleSheet(QLatin1String(busyButtonStyle));
}
