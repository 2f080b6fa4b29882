#pragma once

#include <QToolButton>

namespace workbench {

/// A button of the start page, which triggers an action. Unlike other tool buttons, it can also be
/// pressed with Return.
class StartButton : public QToolButton
{
    Q_OBJECT

public:
    /// The action is not owned.
    StartButton(QAction* action, QWidget* parent);

    /// Shows a picture of this size above the text. The file may be missing.
    void setPicture(const QString& file, const QSize& size);

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace workbench
