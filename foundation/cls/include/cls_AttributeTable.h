#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "TVOExport.h"
#include "cls_Persistent.h"
#include "cls_Types.h"
#include "cls_Visitors.h"

/// Keeps objects that several holders share shared in a deep copy, too: the original's address to the copy's holder.
class cls_DeepCopyContext {
 public:
  template <class Holder>
  Holder const* Find(void const* original) const {
    auto const found = copies_.find(original);
    return found == copies_.end() ? nullptr : static_cast<Holder const*>(found->second.get());
  }
  template <class Holder>
  void Note(void const* original, Holder const& copy) {
    copies_[original] = std::make_shared<Holder>(copy);
  }

 private:
  std::unordered_map<void const*, std::shared_ptr<void>> copies_;
};

/// One attribute of a class: its key, how it is stored, and access to it in an object of the class.
class TVO_API cls_Attribute {
 public:
  explicit cls_Attribute(cls_DeclaredAttribute declaration) : declared(std::move(declaration)) {}
  virtual ~cls_Attribute();

  virtual void Write(cls_Persistent const& object, cls_WriteVisitor const& writer) const = 0;
  virtual void Read(cls_Persistent& object, cls_ReadVisitor const& reader) const = 0;
  virtual bool Equal(cls_Persistent const& a, cls_Persistent const& b) const = 0;
  /// Gives `to` the value that the attribute has in `from`, both objects of the class.
  virtual void Assign(cls_Persistent& to, cls_Persistent const& from) const = 0;
  virtual bool HasIdentity() const { return false; }
  virtual void NewUid(cls_Persistent&) const {}
  /// Gives the object a copy of its own of what it shares with others.
  virtual void Unshare(cls_Persistent&, cls_DeepCopyContext&) const {}

  /// Refuses what an object that stands here, alone or in a list or map, refuses by an AssertValid() of its own.
  virtual void AssertPartsValid(cls_Persistent const&) const {}

  /// The value as a person types it: shortest form of a number that reads back equal, names of enumerations, "(default)"
  /// for a number that is not given, elements of lists with commas between them.
  virtual std::string Text(cls_Persistent const& object) const = 0;
  /// Takes a value typed so. False if the text has not the form that Expected() tells; an unknown name is refused.
  virtual bool SetText(cls_Persistent& object, std::string_view text) const = 0;
  virtual char const* Expected() const = 0;
  /// The object embedded here, null if the attribute is of another kind or holds none.
  virtual cls_Persistent* Embedded(cls_Persistent&) const { return nullptr; }
  cls_Persistent const* Embedded(cls_Persistent const& object) const {
    return Embedded(const_cast<cls_Persistent&>(object));
  }

  cls_DeclaredAttribute declared;
  int column = 0;  ///< first column in the class's table
};

/// The one table from which all that concerns a class's storage follows. Built by cls_Describe.
class TVO_API cls_AttributeTable {
 public:
  cls_AttributeTable(cow_String name, int version, unsigned int typeId, cls_AttributeTable const* base);
  cls_AttributeTable(cls_AttributeTable&&) noexcept;
  ~cls_AttributeTable();

  cow_String const& Name() const noexcept { return name_; }
  /// Schema revision in which the class's layout last changed.
  int Version() const noexcept { return version_; }
  unsigned int TypeId() const noexcept { return typeId_; }
  cls_AttributeTable const* Base() const noexcept { return base_; }
  /// Scripting name of the constructor, empty if scripts do not make such objects.
  cow_String const& ScriptingName() const noexcept { return scriptingName_; }
  /// The class of the object's value in a step, null for classes that do not vary by step.
  cls_AttributeTable const* StepState() const noexcept { return stepState_ == nullptr ? nullptr : &stepState_(); }

  /// The attributes that this class adds, in the order of registration.
  std::vector<std::unique_ptr<cls_Attribute>> const& Own() const noexcept { return own_; }
  /// All attributes, the base's first.
  std::vector<cls_Attribute const*> const& All() const noexcept { return all_; }
  /// The attribute of that key in this class or a base, or null.
  cls_Attribute const* Find(std::string_view key) const noexcept;

  bool Equal(cls_Persistent const& a, cls_Persistent const& b) const;
  void NewUid(cls_Persistent& object) const;
  void Unshare(cls_Persistent& object, cls_DeepCopyContext& context) const;
  void WriteLevel(cls_Persistent const& object, cls_WriteVisitor const& writer) const;
  void ReadLevel(cls_Persistent& object, cls_ReadVisitor reader) const;

  /// Small number of the table in this process, for arrays by class.
  int Index() const noexcept { return index_; }
  /// A new table for the class in a database.
  cls_Table& AddTo(cls_Database& database) const;

 protected:
  void Add(std::unique_ptr<cls_Attribute> attribute);

  cow_String scriptingName_;
  cls_AttributeTable const& (*stepState_)() = nullptr;

 private:
  cow_String name_;
  int version_;
  unsigned int typeId_;
  cls_AttributeTable const* base_;
  int index_;
  int columnCount_;
  std::vector<std::unique_ptr<cls_Attribute>> own_;
  std::vector<cls_Attribute const*> all_;
  std::vector<cls_Attribute const*> identities_;  ///< those of all_ that carry identities
};

/// All attributes of an object in one text, as a person types them: "lower=1,upper=100".
TVO_API std::string cls_ValuesText(cls_Persistent const& object);
/// Takes attributes typed so; a part without a key goes on with the list before it. False, with some of the attributes
/// set, if a key is unknown or its value has not the form that the attribute expects.
TVO_API bool cls_SetValuesText(cls_Persistent& object, std::string_view text);

/// A copy with the identities of the original; no change of the one shows in the other. The caller owns it.
TVO_API cls_Persistent* cls_DeepCopy(cls_Persistent const& object, cls_DeepCopyContext& context);

template <class T>
T* cls_DeepCopyOf(T const& object, cls_DeepCopyContext& context) {
  return static_cast<T*>(cls_DeepCopy(object, context));
}
