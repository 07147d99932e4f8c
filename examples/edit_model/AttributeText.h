#pragma once

#include <functional>
#include <memory>

#include "ScriptLine.h"
#include "cls_Registrar.h"

// Objects of any class as texts, by the keys in the class's table of attributes.

/// One attribute as it is shown.
struct AttributeRow {
  std::string key;
  std::string value;
  std::string state;  ///< of a propagating attribute, else empty

  bool operator==(AttributeRow const&) const = default;
};

/// The object's attributes, base class first. The list of states is left out: it is shown step by step.
std::vector<AttributeRow> AttributeRows(cls_Persistent const& object);

/// Gives an attribute of the first of the objects that has it a typed value; SET, FREED and UNSET give a propagating
/// one that state, as scripts do in the step that creates the object (`createStep`) or later. A key that none of them
/// has and a value of another kind cannot be read. Objects that are typed by their values are asked whether they are
/// valid.
void SetAttribute(std::initializer_list<cls_Persistent*> objects, Setting const& setting, bool createStep);

/// The class whose scripting constructor has that name, if it is one of those that fit; else the line cannot be read,
/// and `expected` says what stands there.
cls_ClassMetadata const& FindType(std::string const& name, std::function<bool(cls_AttributeTable const&)> const& fits,
                                  char const* expected);

/// A new object of that class, or of the class with that table. An abstract class cannot be read.
std::unique_ptr<cls_Persistent> NewObject(cls_ClassMetadata const& type);
std::unique_ptr<cls_Persistent> NewObject(cls_AttributeTable const& table);
