#include "dialogs/RowStrip.h"

#include "dialogs/ElidedLabel.h"

#include <VKD_QT_Dialog.h>
#include <VKD_QT_Layouts.h>
#include <VKD_QT_Ok.h>

#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QToolButton>

namespace plib {

RowStrip::RowStrip(VKD_QT_Dialog* dialog)
    : QWidget(dialog)
    , m_titleLabel(new ElidedLabel(this))
    , m_noteLabel(new QLabel(this))
    , m_row(new VKD_QT_HBoxLayout)
    , m_messageLabel(new QLabel(this))
{
    setObjectName(QStringLiteral("rowStrip"));
    m_titleLabel->setObjectName(QStringLiteral("rowTitle"));
    QFont bold = font();
    bold.setBold(true);
    m_titleLabel->setFont(bold);
    m_noteLabel->setObjectName(QStringLiteral("rowNote"));
    m_noteLabel->setWordWrap(true);
    m_noteLabel->hide();
    m_messageLabel->setObjectName(QStringLiteral("rowMessage"));
    m_row->addWidget(m_titleLabel, 1);
    m_row->addWidget(m_messageLabel);
    auto layout = new VKD_QT_VBoxLayout(this);
    QMargins margins = layout->contentsMargins();
    margins.setBottom(0); // the layout of the dialog has its own margin
    layout->setContentsMargins(margins);
    layout->addLayout(m_row);
    layout->addWidget(m_noteLabel);
    dialog->layout()->setMenuBar(this);
}

void RowStrip::setTitle(const QString& title)
{
    m_titleLabel->setFullText(title);
    m_messageLabel->clear();
    window()->setAccessibleDescription(title); // screen readers read it when the dialog opens
}

void RowStrip::setNote(const QString& note)
{
    m_noteLabel->setText(note);
    m_noteLabel->setVisible(!note.isEmpty());
}

void RowStrip::addButton(QToolButton* button)
{
    m_row->addWidget(button);
}

void RowStrip::showMessage(const QString& text)
{
    m_messageLabel->setText(text);
}

void RowStrip::setSteps(const QString& previousRefusal, const QString& nextRefusal)
{
    if (!m_previous.button) {
        addStep(&m_previous, "previousRow", Qt::UpArrow, int(Qt::ALT) | Qt::Key_Up,
                tr("OK and continue with the previous row (%1)"), -1);
        addStep(&m_next, "nextRow", Qt::DownArrow, int(Qt::ALT) | Qt::Key_Down,
                tr("OK and continue with the next row (%1)"), 1);
        const auto ok = window()->findChild<VKD_QT_Ok*>();
        setTabOrder(ok->cmdCancel(), m_previous.button);
        setTabOrder(m_previous.button, m_next.button);
    }
    setRefusal(&m_previous, previousRefusal);
    setRefusal(&m_next, nextRefusal);
}

void RowStrip::setRefusal(Step* step, const QString& refusal)
{
    step->refusal = refusal;
    step->button->setEnabled(refusal.isEmpty());
    step->button->setToolTip(refusal.isEmpty() ? step->purpose : refusal);
}

/// The keys belong to shortcuts of the dialog and not to the buttons, whose animation would delay
/// key repeats. If there is no row in this direction, the shortcut shows the reason.
void RowStrip::addStep(Step* step, const char* name, Qt::ArrowType arrow, int key,
                       const QString& purpose, int direction)
{
    auto button = new QToolButton(this);
    button->setObjectName(QLatin1String(name));
    button->setArrowType(arrow);
    button->setFocusPolicy(Qt::TabFocus); // a click leaves the focus in the field
    const QKeySequence keys(key);
    *step = {button, purpose.arg(keys.toString(QKeySequence::NativeText)), QString()};
    button->setAccessibleName(step->purpose);
    addButton(button);
    const auto request = [this, step, direction] {
        if (step->refusal.isEmpty())
            Q_EMIT stepRequested(direction);
        else
            showMessage(step->refusal);
    };
    connect(button, &QToolButton::clicked, this, request);
    connect(new QShortcut(keys, window()), &QShortcut::activated, this, request);
}

} // namespace plib
