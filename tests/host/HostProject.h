#pragma once

#include "TemporaryProject.h"

#include <tagZOB_QUAD_RIM.h>

#include <vector>

/// A project in a folder of its own, as a host has it open.
class HostProject
{
public:
    /// With the sample model of this name; an empty name is a project without a model.
    explicit HostProject(const QString& model);

    VKD_H_ZOBDoc* doc() { return m_project.doc.get(); }
    /// Closes the file and opens it again, so that what is read afterwards comes from the file.
    void reopen();

    /// The design records, in the order of the store.
    std::vector<tagZOB_QUAD_RIM> records();
    void setRecords(const std::vector<tagZOB_QUAD_RIM>& records);

private:
    testsupport::TemporaryProject m_project;
};
