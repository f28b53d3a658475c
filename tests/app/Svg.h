#pragma once

#include "app_Outline.h"

#include <map>
#include <string>
#include <vector>

/// One element of an XML document.
struct XmlElement
{
    std::string name;
    std::map<std::string, std::string> attributes;
    std::string text; ///< What stands directly in it, entities resolved.

    double Number(const std::string& attribute) const;
};

/// The elements of a document, in the order in which they begin. Throws `std::runtime_error`, with the place,
/// for anything that is not well-formed: tags, attributes, entities, characters.
std::vector<XmlElement> XmlElements(const std::string& document);

/// The elements of this name.
std::vector<XmlElement> Named(const std::vector<XmlElement>& elements, const std::string& name);

/// The texts of a picture, in their order.
std::vector<std::string> TextsOf(const std::vector<XmlElement>& elements);

/// The text elements that read so.
std::vector<XmlElement> TextsReading(const std::vector<XmlElement>& elements, const std::string& text);

/// The points of a polyline or of a path of straight lines.
std::vector<app_Point> PointsOf(const XmlElement& element);

/// The box of an element of a picture, a text's by estimate; empty for an element that is not drawn.
app_Box BoxOf(const XmlElement& element);

/// Expects a picture that is well-formed, has only finite numbers, and lies within its view box; its
/// elements.
std::vector<XmlElement> ExpectPicture(const std::string& document);

/// Expects that no two texts of a picture overlap.
void ExpectTextsApart(const std::vector<XmlElement>& elements);
