#pragma once

#include "TemporaryProject.h"

#include <tagZOB_QUAD_RIM.h>

#include <vector>

/// A host's open project in a temporary folder.
class HostProject
{
public:
    /// Creates the project from the sample model with this name, or without a model if the name is
    /// empty.
    explicit HostProject(const QString& model);

    VKD_H_ZOBDoc* doc() { return m_project.doc.get(); }
    void reopen() { m_project.reopen(); }

    /// Returns the design records in the order in which they are stored.
    std::vector<tagZOB_QUAD_RIM> records();
    void setRecords(const std::vector<tagZOB_QUAD_RIM>& records);

private:
    testsupport::TemporaryProject m_project;
};
