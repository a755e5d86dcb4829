#include "QUxTitleBarGUIW.h"

#include "ui_QUxTitleBarGUI.h"

QUxTitleBarGUIW::QUxTitleBarGUIW(QWidget* parent, const QString& title) : QWidget(parent), ui(new Ui::QUxTitleBarGUI)
{
    setObjectName(QStringLiteral("QUxTitleBar"));
    ui->setupUi(this);
    ui->_titleBarName->setText(title);
}

QUxTitleBarGUIW::~QUxTitleBarGUIW() = default;

QLabel* QUxTitleBarGUIW::titleLabel() const { return ui->_titleBarName; }
QToolButton* QUxTitleBarGUIW::dockButton() const { return ui->_dock; }
QToolButton* QUxTitleBarGUIW::closeButton() const { return ui->_close; }
QToolButton* QUxTitleBarGUIW::dockingButton() const { return ui->_docking; }
QUxDragModuleLabel* QUxTitleBarGUIW::iconLabel() const { return ui->_icon; }
