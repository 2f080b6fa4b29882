#include "window/outputs/CopyOutputsDialog.h"

#include "window/support/HelpKey.h"
#include "window/support/okAndCancel.h"

#include <VKD_QT_Ok.h>

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace workbench {

CopyOutputsDialog::CopyOutputsDialog(const QStringList& names, QWidget* parent)
    : VKD_H_Dialog(parent, "CopyOutputsDialog")
    , m_list(new QListWidget(this))
{
    setWindowTitle(tr("Copy from Project"));
    setHelpTopic(this, "GRAV/OUTPUTS");
    m_list->setObjectName(QStringLiteral("OutputsToCopy"));
    auto label = new QLabel(tr("&Outputs to copy:"), this);
    label->setBuddy(m_list);
    for (const QString& name : names) {
        auto item = new QListWidgetItem(name, m_list);
        item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Checked);
    }
    m_list->setCurrentRow(0);
    auto buttons = newOkAndCancel(this);
    connect(m_list, &QListWidget::itemChanged, buttons->cmdOk(),
            [this, ok = buttons->cmdOk()] { ok->setEnabled(!checkedOutputs().isEmpty()); });
    connect(buttons->cmdOk(), &QPushButton::clicked, this, &CopyOutputsDialog::accept);
    connect(buttons->cmdCancel(), &QPushButton::clicked, this, &CopyOutputsDialog::reject);
    auto layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(m_list);
    layout->addWidget(buttons);
}

QVector<int> CopyOutputsDialog::checkedOutputs() const
{
    QVector<int> checked;
    for (int i = 0; i < m_list->count(); ++i)
        if (m_list->item(i)->checkState() == Qt::Checked)
            checked << i;
    return checked;
}

} // namespace workbench
