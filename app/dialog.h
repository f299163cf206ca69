#pragma once

#include "app/commandpanel.h"
#include "app/fileentrances.h"
#include "app/helpkey.h"
#include "app/linkpanels.h"
#include "app/listfiles.h"
#include "app/liststate.h"
#include "app/listundo.h"
#include "app/looppanel.h"
#include "app/loopstatus.h"
#include "app/messagepanel.h"
#include "app/recordcontrol.h"
#include "app/settingskeeper.h"
#include "app/statusline.h"
#include "app/windowmemory.h"
#include "session/session.h"
#include "widgets/wheelguard.h"

#include <QDialog>

#include <memory>

namespace Ui {
class Dialog;
}

/// The main window. It owns the rooms' objects, wires them together, forwards what the user does,
/// and shows their messages.
class Dialog : public QDialog
{
    Q_OBJECT

public:
    explicit Dialog(QWidget *parent = nullptr);
    ~Dialog() override;

    /// The program ends without asking: a modified list stays for the next start, the settings are
    /// saved, the links are closed.
    void end();

    /// The desktop's session may end: the same, but the window goes on if it doesn't.
    void keepForNextStart();

    /// Escape leaves the window open.
    void reject() override {}

protected:
    void closeEvent(QCloseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    bool nativeEvent(const QByteArray &eventType, void *message, long *result) override;

private slots:
    void on_tabWidget_currentChanged(int index);
    void on_pushButton_OpenCom_clicked();
    void on_comboBox_Comm_activated(int index);
    void on_comboBox_Baudrate_activated(int index);
    void serial_receiveData();
    void on_pushButton_ConnectHID_clicked();
    void hid_receiveData(HidPacket packet);
    void Close_HidDevice_From_thread();

    void SendOne();
    void on_pushButton_SendAll_clicked();
    void on_pushButton_SendAll_2_clicked();
    void on_pushButton_Start_Loop_clicked();
    void Timer1_Out_Event();
    void Timer2_Out_Event();

    void on_pushButton_ClearMessage_clicked();
    void on_pushButton_SaveMessage_clicked();
    void on_pushButton_LoadCommand_clicked();
    void on_pushButton_SaveCommand_clicked();
    void on_pushButton_ClearCommand_clicked();

    void tableRegisterContexMenuRequested(const QPoint &pos);
    void SlotRegisterMenuClicked(QAction *act);
    void SlotSelectMenuClicked(QAction *act);
    void SlotCmdMenuClicked(QAction *act);

    void on_tableWidget_Register_cellChanged(int row, int column);
    void on_tableWidget_Register_cellClicked(int row, int column);
    void On_tableWidget_Register_textchange();
    void on_DataEdited();
    void on_DataEnter();
    void editor_dataIn();
    void doMouseTrackTip(const QModelIndex &index);

private:
    void setUpSession();
    void setUpCommands();
    void setUpNotices();
    void saveSettings();
    void showMessage(const QString &text);

    std::unique_ptr<Ui::Dialog> m_form;
    WindowMemory m_memory;
    WheelGuard m_wheelGuard;
    SettingsKeeper m_settings;
    ListState m_list;
    StatusLine m_status;
    Session m_session;
    LinkPanels m_links;
    LoopPanel m_loopPanel;
    LoopStatus m_loopStatus;
    CommandPanel m_commands;
    ListUndo m_undo;
    MessagePanel m_messages;
    ListFiles m_files;
    FileEntrances m_entrances;
    RecordControl m_recording;
    HelpKey m_helpKey;
    bool m_isEnding = false;
};
