#include "app/dialog.h"

#include "app/commandarea.h"
#include "app/datafolder.h"
#include "app/looparea.h"
#include "app/replytips.h"
#include "app/tabletips.h"
#include "app/windowform.h"
#include "log/logtable.h"
#include "ui_dialog.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QMessageBox>

Dialog::Dialog(QWidget *parent)
    : QDialog(parent)
    , m_form(fillWindow(*this))
    , m_memory(*this, *m_form->splitter, dataFile(QStringLiteral("window.ini")), this)
    , m_wheelGuard(*m_form->tabWidget)
    , m_settings(dataFile(QStringLiteral("debuggerConfig.ini")))
    , m_status({&m_form->tab->statusLabel(), &m_form->tab_2->statusLabel()}, this)
    , m_session(dataFile(QStringLiteral("hidDeviceID.ini")), portsFolder(), this)
    , m_links(*m_form->tab, *m_form->tab_2, m_session, m_status, this)
    , m_loopPanel({*m_form->loopArea, *m_form->tabWidget, *m_form->tab, *m_form->tab_2,
                   *m_form->commandArea, *m_form->pushButton_SaveMessage},
                  this)
    , m_loopStatus(m_session, m_status, this)
    , m_commands(*m_form->commandArea, m_settings.settings().isEditorFun != 0, *this)
    , m_undo(*m_form->commandArea, m_commands, m_list, this)
    , m_messages(*m_form->messageArea, m_session, this)
    , m_files(*this, m_commands.rows(), m_list, m_session.log(), m_status)
    , m_entrances(m_form->commandArea->loadButton(), m_files, m_status, this)
    , m_recording(*m_form->recordPanel, m_session, m_status, m_memory, this)
    , m_helpKey(*this, QCoreApplication::applicationDirPath(), this)
{
    m_memory.restore();
    m_messages.setRecordingFile([this] { return m_recording.file(); });
    setUpCommands();
    setUpNotices();
    setUpSession();
    m_form->tabWidget->setCurrentIndex(m_settings.settings().linkMode);
    m_files.offerLeftBehind();
}

Dialog::~Dialog()
{
    m_form->commandArea->table().clearContents();
}

void Dialog::closeEvent(QCloseEvent *event)
{
    m_session.loop().stop();
    m_files.saveIfWanted();
    saveSettings();
    // While the question was asked, the program may have been told to end.
    if (!m_isEnding) {
        m_files.discardKept();
    }
    event->accept();
}

void Dialog::end()
{
    m_isEnding = true;
    m_session.loop().stop();
    keepForNextStart();
    m_session.end();
}

void Dialog::keepForNextStart()
{
    m_files.keep();
    saveSettings();
}

void Dialog::saveSettings()
{
    m_settings.save(m_session, m_files);
    m_memory.save();
}

void Dialog::wheelEvent(QWheelEvent * /*event*/)
{
    m_commands.turnWheel(mapFromGlobal(QCursor::pos()));
}

bool Dialog::nativeEvent(const QByteArray & /*eventType*/, void *message, long *result)
{
    return m_session.devices().takeMessage(message, result);
}

void Dialog::setUpSession()
{
    m_settings.apply(m_session, m_files);
    m_loopPanel.follow(m_session);
    m_messages.remember(m_memory);
    m_loopPanel.remember(m_memory);
    m_links.remember(m_memory);
    m_entrances.remember(m_memory);
    connect(&m_links, &LinkPanels::listsDue, this, &Dialog::Timer1_Out_Event);
    m_links.watchDevices([this] { return quintptr(winId()); });
}

void Dialog::setUpCommands()
{
    const RowMenus &menus = m_commands.menus();
    connect(&menus.rowMenu(), &QMenu::triggered, this, &Dialog::SlotRegisterMenuClicked);
    connect(&menus.selectMenu(), &QMenu::triggered, this, &Dialog::SlotSelectMenuClicked);
    connect(&menus.cmdMenu(), &QMenu::triggered, this, &Dialog::SlotCmdMenuClicked);
    connect(&m_form->commandArea->table(), &QTableWidget::customContextMenuRequested, this,
            &Dialog::tableRegisterContexMenuRequested);
    const CommandTable &rows = m_commands.rows();
    connect(&rows, &CommandTable::sendRequested, this, &Dialog::SendOne);
    connect(&rows, &CommandTable::addressCommitted, this, &Dialog::on_DataEdited);
    connect(&rows, &CommandTable::enterPressed, this, &Dialog::on_DataEnter);
    connect(&m_commands.editor(), &DirectEditor::SendData, this, &Dialog::editor_dataIn);
    connect(&m_commands, &CommandPanel::modified, &m_list, &ListState::setModified);
    m_form->commandArea->follow(m_list);
    showReplyTimes(*m_form->commandArea, rows, m_session.replies());
    m_messages.goToRowsOf(m_commands);
}

void Dialog::setUpNotices()
{
    connect(&m_files, &ListFiles::notice, this, &Dialog::showMessage);
    connect(&m_session, &Session::notice, this, &Dialog::showMessage);
    connect(&m_links, &LinkPanels::notice, this, &Dialog::showMessage);
    connect(&m_commands, &CommandPanel::notice, this, &Dialog::showMessage);
    connect(&m_helpKey, &HelpKey::notice, this, &Dialog::showMessage);
    connect(&m_commands.rows(), &CommandTable::insertionRefused, &m_status, &StatusLine::tell);
    connect(&m_undo, &ListUndo::told, &m_status, &StatusLine::tell);
    connect(&m_form->commandArea->table(), &QTableWidget::entered, this, &Dialog::doMouseTrackTip);
    connect(&m_form->messageArea->table(), &QTableWidget::entered, this, &Dialog::doMouseTrackTip);
}

void Dialog::on_tabWidget_currentChanged(int index)
{
    m_links.goToTab(index);
}

void Dialog::on_pushButton_OpenCom_clicked()
{
    m_links.serial().toggle();
}

void Dialog::on_comboBox_Comm_activated(int /*index*/)
{
    m_links.serial().open();
}

void Dialog::on_comboBox_Baudrate_activated(int index)
{
    m_form->tab->prepareBaudRate(index);
}

void Dialog::serial_receiveData()
{
    m_session.links().serial().receive();
}

void Dialog::on_pushButton_ConnectHID_clicked()
{
    m_links.hid().toggle();
}

void Dialog::hid_receiveData(HidPacket packet)
{
    m_session.links().hid().receive(packet);
}

void Dialog::Close_HidDevice_From_thread()
{
    m_session.endLink(LinkMode::Hid);
}

void Dialog::SendOne()
{
    m_links.takeCrcFlag();
    m_session.sender().sendOne(m_commands.rows().currentRow());
}

void Dialog::on_pushButton_SendAll_clicked()
{
    m_links.takeCrcFlag();
    m_session.sender().sendAll(m_commands.rows().checkedRows());
}

void Dialog::on_pushButton_SendAll_2_clicked()
{
    on_pushButton_SendAll_clicked();
}

void Dialog::on_pushButton_Start_Loop_clicked()
{
    if (m_session.loop().isRunning()) {
        m_session.loop().stop();
        return;
    }
    m_links.takeCrcFlag();
    m_session.loop().start(m_commands.rows().checkedRows(), m_form->loopArea->timing());
}

void Dialog::Timer1_Out_Event()
{
    m_links.refreshLists();
}

void Dialog::Timer2_Out_Event()
{
    m_session.loop().runPass();
}

void Dialog::on_pushButton_ClearMessage_clicked()
{
    m_session.log().clear();
}

void Dialog::on_pushButton_SaveMessage_clicked()
{
    m_files.saveMessages();
}

void Dialog::on_pushButton_LoadCommand_clicked()
{
    m_files.load();
}

void Dialog::on_pushButton_SaveCommand_clicked()
{
    m_files.save();
}

void Dialog::on_pushButton_ClearCommand_clicked()
{
    m_commands.rows().clear();
    m_list.setNew();
}

void Dialog::tableRegisterContexMenuRequested(const QPoint &pos)
{
    m_commands.showMenu(pos);
}

void Dialog::SlotRegisterMenuClicked(QAction *act)
{
    m_commands.actions().changeRow(act);
}

void Dialog::SlotSelectMenuClicked(QAction *act)
{
    m_commands.actions().checkSelectedRows(act);
}

void Dialog::SlotCmdMenuClicked(QAction *act)
{
    m_commands.actions().writeCmd(act);
}

void Dialog::on_tableWidget_Register_cellChanged(int /*row*/, int /*column*/)
{
    On_tableWidget_Register_textchange();
}

void Dialog::on_tableWidget_Register_cellClicked(int /*row*/, int /*column*/) {}

void Dialog::On_tableWidget_Register_textchange()
{
    m_list.setModified();
    m_commands.rows().recomputeCurrentRow();
}

void Dialog::on_DataEdited()
{
    m_commands.rows().normaliseCurrentAddress();
}

void Dialog::on_DataEnter()
{
    m_commands.rows().goOnFromCurrentCell();
}

void Dialog::editor_dataIn()
{
    m_commands.takeBackEdited();
}

void Dialog::doMouseTrackTip(const QModelIndex &index)
{
    showInstantTip(index);
}

void Dialog::showMessage(const QString &text)
{
    QMessageBox::information(this, tr("Message"), text, QMessageBox::Ok);
}
