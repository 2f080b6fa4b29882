#pragma once

#include <VKD_H_Dialog.h>

#include <QVector>

class QListWidget;

namespace workbench {

/// Asks which outputs of another project are to be copied. Initially, all of them are checked.
class CopyOutputsDialog : public VKD_H_Dialog
{
    Q_OBJECT

public:
    CopyOutputsDialog(const QStringList& names, QWidget* parent);

    /// Returns the indices of the checked outputs.
    QVector<int> checkedOutputs() const;

private:
    QListWidget* m_list;
};

} // namespace workbench
