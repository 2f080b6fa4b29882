#pragma once

#include <tagZOB_QUAD_RIM.h>
#include <ZobHandle.h>

#include <QAbstractTableModel>

#include <array>
#include <vector>

namespace workbench {

/// The design records of a project as a table: a column for each record, and a row for each
/// four-byte field, with the field's name and unit as the row header.
class RecordTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Reloads the records of the project, or clears the table if the handle is null. Only known
    /// fields are shown, even if a record is longer. Returns whether all records were read.
    bool read(ZobHandle project);
    /// Returns the cell text with the most characters.
    QString longestText() const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    using Record = std::array<char, sizeof(tagZOB_QUAD_RIM)>;

    static QString wordText(quint32 word, int row);
    quint32 word(int record, int row) const;

    std::vector<Record> m_records;
};

} // namespace workbench
