#pragma once

#include "vkd_zob.h"

#include <QtGlobal>

#include <optional>

class ZobConnection;

/// Detects changes that other programs or connections make to the file of a connection. It compares
/// the change counter in the file header, which needs no lock, and queries SQLite only if the
/// counter differs: the counter also includes the changes of this connection.
class OutsideChanges
{
public:
    /// Counts from now on. The connection must outlive the object.
    explicit OutsideChanges(ZobConnection& connection);

    /// See vkd_zob_outside_changes().
    cd_error_t number(int* number);

private:
    cd_error_t ask();

    ZobConnection& m_connection;
    std::optional<quint32> m_counter; ///< in the file, at the last query
    int m_version = 0;                ///< SQLite's data version at that query
    int m_firstVersion = 0;
};
