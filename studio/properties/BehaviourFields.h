// One field of a behaviour record as a property.
#pragma once

#include "studio/document/ObjectExtras.h"
#include "studio/properties/Property.h"

namespace Studio {

/// Finds a field in an object's extras.
template <class Value>
using FieldOf = std::function<const Value&(const ObjectExtras&)>;

Property RecordText(Text label, const FieldOf<CString>& field);
/// The name of the value that the behaviour uses instead of the binding.
Property RecordValueName(const FieldOf<CString>& field);
Property RecordNumber(Text label, NumberRange range, FieldOf<int> field);
Property RecordNumber(Text label, NumberRange range, FieldOf<long> field);
Property RecordNumber(Text label, NumberRange range, FieldOf<float> field);
Property RecordChoice(Text label, std::function<std::vector<Choice>()> choices, const FieldOf<int>& field);
/// `kind`: a check box or a toggle.
Property RecordCheck(Text label, FieldKind kind, const FieldOf<int>& field);
Property RecordColor(Text label, const FieldOf<DWORD>& field);

/// The arguments of a button's commands in one text, with commas between them.
Property ButtonArguments();
/// The values of a trend graph's lines in one text, with commas between them.
Property TrendLineNames();
/// The colours of the lines in one text: six digits or "auto" each, with commas between them.
Property TrendLineColors();
/// The width of all lines of a trend graph.
Property TrendLineWidth();

/// The binding of an object.
Property BindingRow();
/// Whether a behaviour is in use.
Property SwitchRow(Behaviour behaviour);

}  // namespace Studio
