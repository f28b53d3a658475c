#pragma once

#include "ddr_Model.h"

/// Where shortcuts are resolved: holds the model that they start from, through a handle of its own, so that a
/// copy of the container is a snapshot. It holds a model at all times.
class OVR_EXPORT ddr_DdbContainer
{
public:
    /// Holds a new model.
    ddr_DdbContainer() : model(new ddr_Model) {}
    /// Shares `model`, which must not be empty.
    explicit ddr_DdbContainer(const ddr_ModelHandle& model) : model(model) {}

    /// The model, for changing; made private to this container first.
    ddr_Model* GetModel() { return model.Get(); }
    /// The model, for reading.
    const ddr_Model* ConstGetModel() const { return model.ConstGet(); }
    /// The handle itself, to take a share for a snapshot.
    const ddr_ModelHandle& Handle() const { return model; }

private:
    ddr_ModelHandle model;
};
