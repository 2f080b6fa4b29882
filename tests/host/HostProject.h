#pragma once

#include "TemporaryProject.h"

#include <tagZOB_QUAD_RIM.h>

#include <vector>

/// A project in a folder of its own, opened as by a host.
class HostProject
{
public:
    /// Creates a project with the sample model of this name; an empty name gives a project without
    /// a model.
    explicit HostProject(const QString& model);

    VKD_H_ZOBDoc* doc() { return m_project.doc.get(); }
    /// Closes the file and opens it again, so that later reads use the file.
    void reopen();

    /// Returns the design records in the order of the store.
    std::vector<tagZOB_QUAD_RIM> records();
    void setRecords(const std::vector<tagZOB_QUAD_RIM>& records);

private:
    testsupport::TemporaryProject m_project;
};
