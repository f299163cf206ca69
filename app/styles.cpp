#include "app/styles.h"

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
QTabBar::tab:selected { background: #006fcf; color: #fefefe; }
QTabBar::tab:focus { font-weight: bold; }
QTabBar::tab:disabled { color: #555e72; }
QTabBar::tab:selected:disabled { background: #a9cdf0; color: #313c61; }
QPushButton {
    background: #ffffff; border: 1px solid #7a8394; border-radius: 4px; color: #333333;
    padding: 0px 8px;
}
QPushButton:hover { background: #006fcf; color: #fefefe; }
#pushButton_LoadCommand:hover, #pushButton_SaveCommand:hover, #pushButton_ClearCommand:hover {
    background: #d9eeff;
}
QPushButton:focus { border: 2px solid #006fcf; }
QPushButton:disabled { background: #cccccc; color: #505050; }
QComboBox, QLineEdit {
    background: #ffffff; border: 1px solid #7a8394; border-radius: 4px;
    padding-left: 8px; color: #333333; selection-background-color: #006fcf; selection-color: #fefefe;
}
QComboBox:focus, QLineEdit:focus { border: 2px solid #006fcf; padding-left: 7px; }
QComboBox:disabled, QLineEdit:disabled { background: #eef1f5; color: #555e72; }
QComboBox::drop-down { border: none; width: 26px; }
QComboBox::down-arrow {
    width: 21px; height: 11px; right: 7px; image: url(:/Image/ComboBox-downArrow.png);
}
QComboBox QAbstractItemView { background-color: #ffffff; color: #333333; }
QCheckBox::indicator { width: 26px; height: 26px; }
QCheckBox::indicator:unchecked { image: url(:/Image/Checkbox_uncheck.png); }
QCheckBox::indicator:unchecked:hover, QCheckBox::indicator:unchecked:focus {
    image: url(:/Image/Checkbox_uncheck_hover.png);
}
QCheckBox::indicator:checked { image: url(:/Image/Checkbox_check.png); }
QCheckBox::indicator:checked:hover, QCheckBox::indicator:checked:focus {
    image: url(:/Image/Checkbox_check_hover.png);
}
QTableWidget { outline: 1px solid #006fcf; }
QTableWidget QLineEdit { padding-left: 2px; border-radius: 0px; }
QTableWidget QLineEdit:focus { padding-left: 1px; }
QTableWidget QPushButton { padding: 0px; border: 1px solid transparent; }
QTableWidget QPushButton:focus { border: 1px solid #006fcf; }
UnitLineEdit, #lineEdit_Repeat { font-family: Arial; font-size: 16px; }
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
