#pragma once

#include "TVOBasI18n.h"
#include "cls_Persistent.h"

/// A path from a model to an object of it, as far as it does not depend on the class of the object.
///
/// A path is made of names, so it outlives the object and finds its successor of the same name.
class TVO_API ddr_ShortcutBaseImpl : public cls_Persistent {
 public:
  // Where the path starts: all paths of this library start at a model, none at an output database or a session.
  virtual bool InModel() const { return true; }
  virtual bool InOdb() const { return false; }
  virtual bool InSession() const { return false; }

  /// The last part of the path: a member's name, a key, or an index.
  virtual cow_String Name() const = 0;
  /// Names from the model to the object with dots between them, such as "bcs.BC-1".
  virtual cow_String Path() const = 0;
  /// The expression that gives the object, from the model on, such as "boundaryConditions['BC-1']".
  virtual cow_String PythonPath() const = 0;
  /// Name() in the encoding that `mode` wants.
  cow_String DdbName(TVOBasStringMode mode) const;
  ddr_ShortcutBaseImpl* Copy() const override = 0;

 protected:
  /// `name` behind the path to it, which is empty for a member of the model.
  static cow_String Joined(cow_String const& path, cow_String const& name);
  /// A text as a literal of the scripting language.
  static cow_String Quoted(cow_String const& text);
  /// Refuses a path that leads nowhere: nex_CmdException<cow_String, 1> with the path.
  [[noreturn]] void RefuseUnresolved() const;
};
