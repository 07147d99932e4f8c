#include "AttributeText.h"
#include "Commands.h"

namespace {

cow_String Name(std::string const& text) { return cow_String(text); }

/// The object that the command's first two words name, for writing.
kprC_StepObject& EditedObject(Context const& context, Arguments const& arguments) {
  ObjectsNamed(context.model, arguments.words[0]);
  return context.model.EditRepository(arguments.words[0]).GetObject(Name(arguments.words[1]));
}

kprC_StepObject const& ObjectOf(Context const& context, Arguments const& arguments) {
  return ObjectsNamed(context.model, arguments.words[0]).ConstGetObject(Name(arguments.words[1]));
}

void Put(Context const& context, std::string const& repository, std::string const& name,
         kprC_StepObject const& object) {
  context.model.EditRepository(repository).InsertObject(Name(name), object);
}

std::unique_ptr<cls_Persistent> NewStep(Arguments const& arguments) {
  auto const isStep = [](cls_AttributeTable const& table) {
    return cls_ClassRegistrar::InheritanceCheck(table.TypeId(), kprC_AnalysisStep::TypeId());
  };
  auto step = NewObject(FindType(arguments.words[1], isStep, "a type of step"));
  for (Setting const& setting : arguments.free) SetAttribute({step.get()}, setting, true);
  return step;
}

/// The repository that takes objects of that class, null if there is none.
kprC_StepRepository const* HomeOf(EditedModel const& model, cls_AttributeTable const& table) {
  for (kprC_StepRepository const* repository : model.Repositories()) {
    if (repository->Holds(table.TypeId())) return repository;
  }
  return nullptr;
}

}  // namespace

// ---- steps alone

void AddStep(Context const& context, Arguments const& arguments) {
  auto const step = NewStep(arguments);
  context.model.AddStep(Name(arguments.words[0]), Name(arguments["after"]), static_cast<kprC_AnalysisStep&>(*step));
}

void ReplaceStep(Context const& context, Arguments const& arguments) {
  auto const step = NewStep(arguments);
  context.model.ReplaceStep(Name(arguments.words[0]), static_cast<kprC_AnalysisStep&>(*step));
}

// ---- objects alone

void Create(Context const& context, Arguments const& arguments) {
  auto const variesByStep = [&](cls_AttributeTable const& table) {
    return table.StepState() != nullptr && HomeOf(context.model, table) != nullptr;
  };
  cls_ClassMetadata const& type = FindType(arguments.words[0], variesByStep, "a type of object");
  cls_AttributeTable const& table = *type.Attributes();
  auto const created = NewObject(type);
  auto const state = NewObject(*table.StepState());
  for (Setting const& setting : arguments.free) SetAttribute({created.get(), state.get()}, setting, true);
  auto& object = static_cast<kprC_StepObject&>(*created);
  object.InsertState(Name(arguments["createStepName"]), static_cast<kprC_StepState&>(*state));
  Put(context, HomeOf(context.model, table)->RepositoryName(), arguments.words[1], object);
}

void SetInStep(Context const& context, Arguments const& arguments) {
  cow_String const step = Name(arguments["stepName"]);
  kprC_StepObject const& object = ObjectOf(context, arguments);
  object.CheckStep(step);
  bool const createStep = object.CreateStepName() == step;
  std::unique_ptr<kprC_StepState> const state(object.StateIn(step)->Copy());
  for (Setting const& setting : arguments.free) SetAttribute({state.get()}, setting, createStep);
  EditedObject(context, arguments).InsertState(step, *state);
}

void Deactivate(Context const& context, Arguments const& arguments) {
  EditedObject(context, arguments).Deactivate(Name(arguments["stepName"]));
}

void Reset(Context const& context, Arguments const& arguments) {
  EditedObject(context, arguments).Reset(Name(arguments["stepName"]));
}

void Move(Context const& context, Arguments const& arguments) {
  EditedObject(context, arguments).Move(Name(arguments["fromStepName"]), Name(arguments["toStepName"]));
}

void Copy(Context const& context, Arguments const& arguments) {
  auto const copy = ObjectOf(context, arguments).CopiedToStep(Name(arguments["stepName"]));
  Put(context, arguments.words[0], arguments["to"], *copy);
}

// ---- steps or objects

void Set(Context const& context, Arguments const& arguments) {
  std::string const& name = arguments.words[1];
  auto const change = [&](cls_Persistent& object) {
    for (Setting const& setting : arguments.free) SetAttribute({&object}, setting, true);
  };
  if (IsSteps(arguments.words[0])) return context.model.ChangeStep(Name(name), change);
  std::unique_ptr<kprC_StepObject> const changed(ObjectOf(context, arguments).Copy());
  change(*changed);
  Put(context, arguments.words[0], name, *changed);
}

void Suppress(Context const& context, Arguments const& arguments) {
  if (IsSteps(arguments.words[0])) return context.model.SetStepSuppressed(Name(arguments.words[1]), true);
  EditedObject(context, arguments).Suppress(false, false);
}

void Resume(Context const& context, Arguments const& arguments) {
  if (IsSteps(arguments.words[0])) return context.model.SetStepSuppressed(Name(arguments.words[1]), false);
  EditedObject(context, arguments).Resume(false);
}

void Remove(Context const& context, Arguments const& arguments) {
  cow_String const name = Name(arguments.words[1]);
  if (IsSteps(arguments.words[0])) return context.model.RemoveStep(name);
  ObjectOf(context, arguments);
  context.model.EditRepository(arguments.words[0]).Remove(name);
}

void Rename(Context const& context, Arguments const& arguments) {
  cow_String const name = Name(arguments.words[1]);
  if (IsSteps(arguments.words[0])) return context.model.RenameStep(name, Name(arguments["to"]));
  std::unique_ptr<kprC_StepObject> const object(ObjectOf(context, arguments).Copy());
  context.model.EditRepository(arguments.words[0]).Remove(name);
  Put(context, arguments.words[0], arguments["to"], *object);
}

// ---- files

void Save(Context const& context, Arguments const& arguments) { context.model.Save(Name(arguments.words[0])); }

void Open(Context const& context, Arguments const& arguments) { context.model.Open(Name(arguments.words[0])); }
