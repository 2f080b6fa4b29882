#pragma once

#include "vkd_qt_export.h"

#include <QWidget>

/// A word-wrapped note to the user, preceded by the information icon if `withSign` is true.
class VKD_QT_EXPORT VKD_QT_InfoText : public QWidget
{
    Q_OBJECT

public:
    VKD_QT_InfoText(bool withSign, const QString& text, QWidget* parent = nullptr,
                    const char* name = nullptr);

protected:
    void resizeEvent(QResizeEvent* event) override;
};
