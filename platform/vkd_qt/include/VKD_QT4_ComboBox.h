#pragma once

#include "vkd_qt_export.h"

#include <QComboBox>

/// A combo box whose entries can have an id. It ignores the wheel, so that scrolling the page does
/// not change its value; the open list scrolls. If the box is too narrow, its text is elided and
/// shown in a tool tip, and its list is as wide as the entries.
class VKD_QT_EXPORT VKD_QT4_ComboBox : public QComboBox
{
    Q_OBJECT

public:
    static constexpr int NoId = -99999;

    explicit VKD_QT4_ComboBox(QWidget* parent = nullptr, const char* name = nullptr);

    using QComboBox::addItem;
    /// Adds an entry with a picture and enlarges the icon size if necessary.
    void addItem(const QPixmap& picture, const QString& text, int id);
    void addEntry(const QString& text, int id);
    /// Returns the id of the current entry; NoId if it has no id or there is no current entry.
    int getCurrentId() const;
    /// Makes the entry with this id current. Returns false and changes nothing if there is none.
    bool setCurrentId(int id);

    /// Returns the current entry as a part (vkd_qt_xmlpart.h) whose tag is the object name: its id,
    /// or its text if it has no id. Empty without a current entry or object name.
    virtual QString writeXMLstring() const;
    /// Selects the entry that the combo box's part in a string of parts names. Ids take
    /// precedence over equal texts. Changes nothing if the part or the entry does not exist.
    virtual void readXMLstring(const QString& wholeString);

    void showPopup() override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    QString cutText() const;
};
