#pragma once

#include "vkd_zob.h"

#include <QtGlobal>

#include <optional>

class ZobConnection;

/// Detects changes that other programs or connections make to the file of a connection. It compares
/// the change counter in the file header, which needs no lock. It queries SQLite only if the
/// counter differs, because the counter also includes the changes made through this connection.
class OutsideChanges
{
public:
    /// Starts counting at construction. The connection must outlive the object.
    explicit OutsideChanges(ZobConnection& connection);

    /// See vkd_zob_outside_changes().
    cd_error_t number(int* number);

private:
    cd_error_t ask();

    ZobConnection& m_connection;
    std::optional<quint32> m_counter; ///< counter in the file at the last query
    int m_version = 0;                ///< SQLite's data version at that query
    int m_firstVersion = 0;
};
