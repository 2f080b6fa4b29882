#pragma once

#include <QGroupBox>

class QPushButton;

namespace workbench {

class ContentsList;

/// The table of contents of the text output, with buttons that copy and export it.
class ContentsPreview : public QGroupBox
{
    Q_OBJECT

public:
    explicit ContentsPreview(QWidget* parent);

    /// Shows the contents. If the text is empty, the buttons are disabled.
    void setContents(const QString& text);

    /// Returns a size that is smaller than the text, so that the dialog fits on a small screen.
    QSize sizeHint() const override;

Q_SIGNALS:
    void exportRequested(const QString& text);

private:
    QPushButton* newButton(const char* name, const QString& text, const QString& toolTip);

    QString m_contents;
    ContentsList* m_list;
    QPushButton* m_copy;
    QPushButton* m_export;
};

} // namespace workbench
