#pragma once

#include "mdl_Extension.h"

/// The containers that modules hang on a model: name of the registration, name of the model's member.
#define DDR_MODEL_CONTAINERS(CONTAINER)                            \
  CONTAINER(Step, "steps")                                         \
  CONTAINER(TimePoint, "timePoints")                               \
  CONTAINER(AdaptiveMeshConstraint, "adaptiveMeshConstraints")     \
  CONTAINER(BC, "bcs")                                             \
  CONTAINER(Load, "loads")                                         \
  CONTAINER(Interaction, "interactions")                           \
  CONTAINER(InteractionProperty, "interactionProperties")          \
  CONTAINER(ContactControl, "contactControls")                     \
  CONTAINER(ContactInit, "contactInitializations")                 \
  CONTAINER(ContactStab, "contactStabilizations")                  \
  CONTAINER(Field, "predefinedFields")                             \
  CONTAINER(FieldOutput, "fieldOutputs")                           \
  CONTAINER(HistoryOutput, "historyOutputs")                       \
  CONTAINER(IntegratedOutputSection, "integratedOutputSections")   \
  CONTAINER(Section, "sections")

/// Whatever holds extensions by name: a model, or another database's root.
class TVO_API ddr_DdbContainer : public cls_Persistent {
 public:
  using Extensions = cls_xcBtree<cow_String, cow_COW<mdl_Extension, cow_Virtual<mdl_Extension>>, mdl_Extension>;

  ddr_DdbContainer* Copy() const override = 0;
  /// The extension of that name, for reading or made exclusive for writing. An unknown name is refused with the name.
  mdl_Extension const& ConstGetExtension(cow_String const& name) const;
  mdl_Extension& GetExtension(cow_String const& name);
  bool HasExtension(cow_String const& name) const { return extensions.IsMember(name); }

  Extensions extensions;
};

/// A model as far as this library sees it: one container of every registered kind, by member name.
///
/// A copy shares all containers until one side edits, so it costs little to keep one for undo.
class TVO_API ddr_Model final : public ddr_DdbContainer {
  CLS_PERSISTENT(mdl, ddr_Model)

 public:
  /// A model with an empty container of every kind that is registered now.
  ddr_Model();

  // RegisterBCContainer and its kin: every model made later gets a copy of the wrapped container as an extension.
  // The registration takes ownership. Registering a kind again replaces its container; UnRegister... forgets it.
#define DDR_DECLARE(Name, member)                                \
  static void Register##Name##Container(mdl_Extension* wrapper); \
  static void UnRegister##Name##Container();
  DDR_MODEL_CONTAINERS(DDR_DECLARE)
#undef DDR_DECLARE
};
