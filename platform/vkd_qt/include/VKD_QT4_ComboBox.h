#pragma once

#include "vkd_qt_export.h"

#include <QComboBox>

/// A combo box whose entries may bear an id. Without the focus it leaves the wheel to the page
/// around it, so that scrolling never changes a value. In a narrow place its text is cut with dots
/// and shown whole in a tool tip, and its list is as wide as its entries need.
class VKD_QT_EXPORT VKD_QT4_ComboBox : public QComboBox
{
    Q_OBJECT

public:
    static constexpr int NoId = -99999;

    explicit VKD_QT4_ComboBox(QWidget* parent = nullptr, const char* name = nullptr);

    void addEntry(const QString& text, int id);
    /// The id of the current entry; NoId if it was added without one, or if there is none.
    int getCurrentId() const;
    /// Makes the entry with this id current. False, and no change, if there is none.
    bool setCurrentId(int id);

    void showPopup() override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    QString cutText() const;
};
