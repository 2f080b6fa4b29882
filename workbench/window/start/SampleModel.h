#pragma once

#include <QCoreApplication>
#include <QVector>

namespace workbench {

/// A model that comes with the programs.
struct SampleModel
{
    Q_DECLARE_TR_FUNCTIONS(workbench::SampleModel)

public:
    QString name;        ///< the name of the model for the command line
    QString title;       ///< with a mnemonic
    QString description; ///< for a tool tip

    /// Returns the installed models with texts in the language of the desktop.
    static QVector<SampleModel> installed();
    /// Returns the path of the picture of a model, or an empty string if it is not installed.
    static QString picture(const QString& name, bool isDark);
};

} // namespace workbench
