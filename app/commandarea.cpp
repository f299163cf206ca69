#include "app/commandarea.h"

#include "app/liststate.h"
#include "app/tabletips.h"
#include "ui_commandarea.h"
#include "widgets/celltips.h"
#include "widgets/leavingkeys.h"

#include <QDir>
#include <QShortcut>

#include <utility>

CommandArea::CommandArea(QWidget *parent)
    : QWidget(parent)
    , m_form(std::make_unique<Ui::CommandArea>())
{
    m_form->setupUi(this);
    addButtonKey(*m_form->pushButton_LoadCommand, QKeySequence::Open);
    addButtonKey(*m_form->pushButton_SaveCommand, QKeySequence::Save);
    addLeavingKeys(*m_form->tableWidget_Register);
    m_tips = addTableTips(*m_form->tableWidget_Register);
}

CommandArea::~CommandArea() = default;

void CommandArea::follow(const ListState &list)
{
    connect(&list, &ListState::changed, this, [this, &list] { showList(list); });
}

void CommandArea::setResting(bool resting)
{
    m_form->pushButton_LoadCommand->setDisabled(resting);
    m_form->pushButton_ClearCommand->setDisabled(resting);
    m_form->pushButton_SaveCommand->setDisabled(resting);
}

bool CommandArea::isResting() const
{
    return !m_form->pushButton_LoadCommand->isEnabled();
}

QTableWidget &CommandArea::table() const
{
    return *m_form->tableWidget_Register;
}

void CommandArea::setCellRemark(std::function<QString(const QModelIndex &cell)> remark)
{
    m_tips->setRemark(std::move(remark));
}

QPushButton &CommandArea::loadButton() const
{
    return *m_form->pushButton_LoadCommand;
}

void CommandArea::addButtonKey(QPushButton &button, QKeySequence::StandardKey key)
{
    // A button's own shortcut would make it hold the key, and its caption show it.
    const auto *shortcut = new QShortcut(key, this);
    connect(shortcut, &QShortcut::activated, &button, &QPushButton::click);
}

void CommandArea::showList(const ListState &list)
{
    m_form->label_ListName->setText(list.title());
    m_form->label_ListName->setToolTip(QDir::toNativeSeparators(list.path()));
}
