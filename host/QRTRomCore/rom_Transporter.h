#pragma once

#include "cls_ClassRegistrar.h"

/// Knows the forms in which rows are carried into a store: those of a set of class descriptions.
class OVR_EXPORT rom_Transporter
{
public:
    /// The descriptions must outlive the transporter.
    explicit rom_Transporter(const cls_ClassRegistrar& classes) : classes(classes) {}

    /// The description of the table of a class, or null.
    const cls_ClassMetadata* GetTableMetadata(unsigned classId) const { return classes.Find(classId); }

private:
    const cls_ClassRegistrar& classes;
};
