#include "app/dialog.h"

#include "app/boxes.h"
#include "app/datafolder.h"
#include "app/headerfield.h"
#include "app/windowform.h"
#include "commands/commandcolumns.h"
#include "links/linktexts.h"
#include "log/logcolumns.h"
#include "log/logtable.h"
#include "ui_dialog.h"
#include "version.h"
#include "widgets/celltips.h"

#include <QCloseEvent>
#include <QMessageBox>

namespace {

constexpr int tipColumn = LogColumn::Data;
static_assert(tipColumn == CommandColumn::Crc);

} // namespace

Dialog::Dialog(QWidget *parent)
    : QDialog(parent)
    , m_form(fillWindow(*this))
    , m_memory(*this, *m_form->splitter, dataFile(QStringLiteral("window.ini")), this)
    , m_wheelGuard(*m_form->tabWidget)
    , m_settingsFile(dataFile(QStringLiteral("debuggerConfig.ini")))
    , m_settings(m_settingsFile.load())
    , m_status({&m_form->tab->statusLabel(), &m_form->tab_2->statusLabel()}, this)
    , m_session(dataFile(QStringLiteral("hidDeviceID.ini")), portsFolder(), this)
    , m_serialPanel(*m_form->tab, m_session.links().serial(), this)
    , m_hidPanel(*m_form->tab_2, m_session.links().hid(), this)
    , m_deviceLists(m_serialPanel, m_hidPanel, this)
    , m_loopPanel({*m_form->loopArea, *m_form->tabWidget, *m_form->tab, *m_form->tab_2,
                   *m_form->commandArea, *m_form->pushButton_SaveMessage},
                  this)
    , m_linkStatus(m_status, m_session, this)
    , m_commands(m_form->commandArea->table(), this, this)
    , m_menus(this, m_settings.isEditorFun != 0)
    , m_rowActions(m_form->commandArea->table(), m_commands, m_menus, this)
    , m_tableKeys(m_form->commandArea->table(), m_commands, m_rowActions, m_menus, this)
    , m_rowEditor(m_form->commandArea->table(), m_commands, this)
    , m_log(m_form->messageArea->table(), m_session.log(), this)
    , m_messageCopy(m_form->messageArea->table(), m_log, m_session.log(), this)
    , m_files(*this, m_commands, m_list, m_session.log(), m_status)
    , m_recording(*m_form->recordPanel, m_session, m_status, m_memory, this)
{
    setUpWindow();
    m_form->commandArea->follow(m_list);
    m_form->messageArea->follow(m_log);
    setUpSession();
    setUpLinks();
    setUpCommands();
    setUpTips();
    watchDevices();
    m_form->tabWidget->setCurrentIndex(m_settings.linkMode);
    m_files.offerLeftBehind();
}

Dialog::~Dialog()
{
    m_form->commandArea->table().clearContents();
}

void Dialog::closeEvent(QCloseEvent *event)
{
    m_session.loop().stop();
    m_commands.takeInEdit();
    if (m_list.isModified() && askToSaveCommands()) {
        m_files.save();
    }
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
    m_commands.takeInEdit();
    m_files.keep();
    saveSettings();
}

void Dialog::saveSettings()
{
    m_files.noteFolders(m_settings);
    m_settings.linkMode = int(m_session.links().mode());
    m_settingsFile.save(m_settings);
    m_memory.save();
}

void Dialog::wheelEvent(QWheelEvent * /*event*/)
{
    const QPoint position = mapFromGlobal(QCursor::pos());
    // See docs/deliberate.md, Wheel's place.
    if (m_form->commandArea->table().geometry().contains(position)) {
        m_rowActions.appendRowAtEnd();
    }
}

bool Dialog::nativeEvent(const QByteArray & /*eventType*/, void *message, long *result)
{
    const bool taken = m_session.devices().takeMessage(message);
    if (taken && result != nullptr) {
        *result = 1;
    }
    return taken;
}

void Dialog::setUpWindow()
{
    setWindowTitle(QLatin1String(windowTitleText));
    setWindowFlags(Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint);
    m_memory.restore();
}

void Dialog::setUpCommands()
{
    QTableWidget *table = &m_form->commandArea->table();
    connect(&m_menus.rowMenu(), &QMenu::triggered, this, &Dialog::SlotRegisterMenuClicked);
    connect(&m_menus.selectMenu(), &QMenu::triggered, this, &Dialog::SlotSelectMenuClicked);
    connect(&m_menus.cmdMenu(), &QMenu::triggered, this, &Dialog::SlotCmdMenuClicked);
    table->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(table, &QTableWidget::customContextMenuRequested, this,
            &Dialog::tableRegisterContexMenuRequested);
    connect(&m_rowActions, &RowActions::refused, this, &Dialog::showMessage);
    connect(&m_rowActions, &RowActions::modified, &m_list, &ListState::setModified);
    connect(&m_rowActions, &RowActions::editRequested, &m_rowEditor, &RowEditor::open);
    connect(&m_rowEditor.editor(), &DirectEditor::SendData, this, &Dialog::editor_dataIn);
    connect(&m_rowEditor.editor(), &DirectEditor::unencodableTyped, this, &Dialog::showMessage,
            Qt::QueuedConnection);
    connect(&m_commands, &CommandTable::sendRequested, this, &Dialog::SendOne);
    connect(&m_commands, &CommandTable::insertionRefused, &m_status, &StatusLine::tell);

    connect(&m_commands, &CommandTable::addressCommitted, this, &Dialog::on_DataEdited);
    connect(&m_commands, &CommandTable::enterPressed, this, &Dialog::on_DataEnter);
}

void Dialog::setUpTips()
{
    for (QTableWidget *table : std::initializer_list<QTableWidget *>{
             &m_form->commandArea->table(), &m_form->messageArea->table()}) {
        table->setMouseTracking(true);
        connect(table, &QTableWidget::entered, this, &Dialog::doMouseTrackTip);
        new CellTips(*table, tipColumn, this);
    }
}

void Dialog::setUpSession()
{
    m_session.format().setStartBytes(m_settings.noAppendHeader == 0);
    m_session.format().setLength(m_settings.noAppendLength == 0);
    m_session.links().hid().readDeviceTypes();
    m_session.use(static_cast<LinkMode>(m_settings.linkMode));
    m_form->tab->header().feed(m_session);
    m_loopPanel.follow(m_session);
    m_log.setHold([this] { return m_session.loop().isFrameNear(); });
    m_files.takeFolders(m_settings);
    connect(&m_files, &ListFiles::notice, this, &Dialog::showMessage);
    connect(&m_session, &Session::notice, this, &Dialog::showMessage);
    connect(&m_session, &Session::linkFailed, this,
            [this](LinkMode mode, const QString &name, const QString &reason) {
                if (mode == LinkMode::Uart) {
                    m_deviceLists.refreshSoon();
                    showMessage(whyLost(name, reason));
                }
            });
}

void Dialog::setUpLinks()
{
    m_linkStatus.follow(m_serialPanel);
    m_linkStatus.follow(m_hidPanel);
    connect(&m_serialPanel, &SerialPanel::failed, this,
            [] { showOpenFail(QStringLiteral("UART")); });
    connect(&m_hidPanel, &HidPanel::failed, this, [] { showOpenFail(QStringLiteral("HID")); });
    connect(&m_deviceLists, &DeviceLists::due, this, &Dialog::Timer1_Out_Event);
}

void Dialog::watchDevices()
{
    DeviceWatch &devices = m_session.devices();
    connect(&devices, &DeviceWatch::listsOutdated, &m_deviceLists, &DeviceLists::refreshSoon);
    if (!devices.start([this] { return quintptr(winId()); })) {
        QTimer::singleShot(0, this, [this] {
            showMessage(QStringLiteral("The hardware monitoring registration failed, and the "
                                       "hardware could not be identified!"));
        });
    }
}

void Dialog::on_tabWidget_currentChanged(int index)
{
    m_status.tell({});
    if (index == int(LinkMode::Uart) || index == int(LinkMode::Hid)) {
        m_session.use(static_cast<LinkMode>(index));
    }
}

void Dialog::on_pushButton_OpenCom_clicked()
{
    m_serialPanel.toggle();
}

void Dialog::on_comboBox_Comm_activated(int /*index*/)
{
    m_serialPanel.open();
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
    m_hidPanel.toggle();
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
    takeCrcFlag();
    m_session.sender().sendOne(m_commands.currentRow());
}

void Dialog::on_pushButton_SendAll_clicked()
{
    takeCrcFlag();
    m_session.sender().sendAll(m_commands.checkedRows());
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
    takeCrcFlag();
    m_session.loop().start(m_commands.checkedRows(), m_form->loopArea->timing());
}

void Dialog::Timer1_Out_Event()
{
    m_deviceLists.refresh();
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
    m_commands.clear();
    m_list.setNew();
}

void Dialog::tableRegisterContexMenuRequested(const QPoint &pos)
{
    if (QMenu *menu = m_rowActions.menuAt(pos)) {
        menu->exec(m_rowActions.menuPosition());
    }
}

void Dialog::SlotRegisterMenuClicked(QAction *act)
{
    m_rowActions.changeRow(act);
}

void Dialog::SlotSelectMenuClicked(QAction *act)
{
    m_rowActions.checkSelectedRows(act);
}

void Dialog::SlotCmdMenuClicked(QAction *act)
{
    m_rowActions.writeCmd(act);
}

void Dialog::on_tableWidget_Register_cellChanged(int /*row*/, int /*column*/)
{
    On_tableWidget_Register_textchange();
}

void Dialog::on_tableWidget_Register_cellClicked(int /*row*/, int /*column*/) {}

void Dialog::On_tableWidget_Register_textchange()
{
    m_list.setModified();
    m_commands.recomputeCurrentRow();
}

void Dialog::on_DataEdited()
{
    m_commands.normaliseCurrentAddress();
}

void Dialog::on_DataEnter()
{
    m_commands.goOnFromCurrentCell();
}

void Dialog::editor_dataIn()
{
    m_rowEditor.takeBack(m_rowActions.contextRow());
}

void Dialog::doMouseTrackTip(const QModelIndex &index)
{
    if (index.column() == tipColumn) {
        showCellText(index.data().toString());
    }
}

/// The CRC box of the tab that is used counts for what is sent and logged from now on.
void Dialog::takeCrcFlag()
{
    const bool isSerial = m_session.links().mode() == LinkMode::Uart;
    m_session.format().setCrc(isSerial ? m_form->tab->wantsCrc() : m_form->tab_2->wantsCrc());
}

void Dialog::showMessage(const QString &text)
{
    QMessageBox::information(this, tr("Message"), text, QMessageBox::Ok);
}
