#pragma once

#include "platform/lists/PropertyListReader.h"

#include <QString>

#include <optional>

/// The elements of a list in XML.
namespace XmlElements {

enum class Element {
    Plist,
    Dictionary,
    Array,
    Key,
    String,
    Integer,
    Real,
    Date,
    Data,
    True,
    False,
    Unknown,
};

Element elementNamed(const char *name);

bool isScalar(Element element);

/// The value that a scalar's text stands for, with blanks around it allowed; nothing where the text
/// is not what the element promises. Integers are of both 64-bit ranges, also hexadecimal ones;
/// reals may be "nan" and "infinity"; dates are as "2001-02-03T04:05:06Z", of the years 1 to 9999;
/// data is base64, and a boolean has no text. A string's value lives as long as its text.
std::optional<PropertyListScalar> scalarFrom(Element element, std::string_view text);

/// What is wrong with the text of which nothing came.
QString invalidScalarText(Element element, std::string_view text);

} // namespace XmlElements
