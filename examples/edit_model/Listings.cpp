#include "AttributeText.h"
#include "Commands.h"
#include "kprC_ProcedureTypeLabelMap.h"
#include "kprC_StepSequencer.h"
#include "omu_PrimEnum.h"

namespace {

/// A row an object, a column a step.
Rows HistoryRows(EditedModel const& model, kprC_StepRepository const& repository) {
  Rows rows{{"name"}};
  for (cow_String const& step : model.Steps().Keys()) rows.front().push_back(step.CStr());
  for (cow_String const& key : repository.Keys()) {
    std::vector<std::string>& row = rows.emplace_back(1, key.CStr());
    for (auto const status : repository.ConstGetObject(key).History()) row.push_back(StatusWord(status));
  }
  return rows;
}

}  // namespace

std::string StatusWord(mdl_PropagationStatusEnm status) {
  constexpr std::string_view prefix = "STATUS_";
  return std::string(omu_PrimEnum<mdl_PropagationStatusEnm, 1>(status).AsString().View().substr(prefix.size()));
}

void History(Context const& context, Arguments const& arguments) {
  if (!arguments.words.empty()) {
    context.out.Print(HistoryRows(context.model, ObjectsNamed(context.model, arguments.words[0])));
    return;
  }
  for (kprC_StepRepository const* repository : context.model.Repositories()) {
    if (repository->IsEmpty()) continue;
    context.out.Line(std::string("# ") + repository->RepositoryName());
    context.out.Print(HistoryRows(context.model, *repository));
  }
}

void Show(Context const& context, Arguments const& arguments) {
  cow_String const name(arguments.words[1]);
  std::string const* const step = arguments.Find("stepName");
  cls_Persistent const* shown = nullptr;
  if (IsSteps(arguments.words[0])) {
    if (step != nullptr) throw Unreadable("no stepName: a step does not vary by step");
    shown = &context.model.Steps().ConstGet(name);
  } else {
    kprC_StepObject const& object = ObjectsNamed(context.model, arguments.words[0]).ConstGetObject(name);
    shown = step == nullptr ? static_cast<cls_Persistent const*>(&object) : object.StateIn(cow_String(*step));
  }
  if (shown == nullptr) return context.out.Line("(none)");
  Rows rows;
  for (AttributeRow const& row : AttributeRows(*shown)) rows.push_back({row.key, row.value, row.state});
  context.out.Print(rows);
}

void Invalid(Context const& context, Arguments const& arguments) {
  for (cow_String const& key : ObjectsNamed(context.model, arguments.words[0]).InvalidKeys()) {
    context.out.Line(InOneLine(key.View()));
  }
}

void Offered(Context const& context, Arguments const& arguments) {
  int const procedure = context.model.Procedure(cow_String(arguments.words[0]));
  Rows rows;
  for (kprC_StepRepository const* repository : context.model.Repositories()) {
    for (auto const& menu : repository->OfferedTypes(procedure)) {
      for (cow_String const& label : menu.labels) rows.push_back({menu.name.CStr(), atr_DisplayText(label).CStr()});
    }
  }
  context.out.Print(rows);
}

void Appendable(Context const& context, Arguments const&) {
  kprC_StepSequencer sequence(context.model.Steps(), false);
  sequence.Run();
  for (unsigned int const id : sequence.Appendable()) {
    if (id == kprC_StepSequencer::suppressedEntry) continue;
    context.out.Line(atr_DisplayText(kprC_ProcedureTypeLabelMap::Instance().ConstGet(id)).View());
  }
}
