// All properties that the panel shows.
#pragma once

#include "studio/document/ObjectExtras.h"
#include "studio/properties/Property.h"

namespace Studio {

/// Name, place, fill, outline and text, section by section.
const std::vector<PropertySection>& AppearanceSections();

/// The value that an object is bound to.
const Property& BindingProperty();

/// The name of a behaviour.
Text BehaviourName(Behaviour behaviour);
/// Whether a behaviour is in use.
const Property& BehaviourSwitch(Behaviour behaviour);
/// The fields of a behaviour's record.
const std::vector<Property>& BehaviourFields(Behaviour behaviour);

}  // namespace Studio
