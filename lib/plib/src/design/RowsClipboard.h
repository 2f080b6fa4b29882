#pragma once

#include "exchange/rowTable.h"

#include <QObject>

class DesignParameter;
class QAction;

namespace plib {

enum class RowsStep;

/// Copies rows of the design page to the clipboard and pastes them. The object is a child of the
/// page. Rows are copied as a table for spreadsheets and as records, which preserve all data.
/// Pasting is a single undo step and either succeeds completely or changes nothing.
class RowsClipboard : public QObject
{
    Q_OBJECT

public:
    explicit RowsClipboard(DesignParameter* page);

private:
    QAction* addAction(const char* name, const QString& text, const QKeySequence& key,
                       void (RowsClipboard::*run)());
    void copy();
    void paste();
    void pasteAsNewRows();
    void duplicate();
    void append(RowsStep name, const std::set<int>& rows, const DesignRowList& added);
    bool mayUse(const QStringList& faults);
    RowTable copiedRows() const;
    DesignRowList selectedRows() const;

    DesignParameter* m_page;
};

} // namespace plib
