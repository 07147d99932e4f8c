#pragma once

#include <functional>
#include <iostream>
#include <sstream>

#include "Commands.h"
#include "ModelInvariants.h"

// Edit scripts made up from numbers, and a model that lives through them.

/// Makes up the lines of a script. `choose(n)` gives a number below n.
class RandomEdits {
 public:
  using Choose = std::function<unsigned(unsigned)>;
  explicit RandomEdits(Choose choose) : choose_(std::move(choose)) {
    for (auto const& [typeId, metadata] : cls_ClassRegistrar::Present().All()) {
      cls_AttributeTable const* const table = metadata->Attributes();
      if (table == nullptr || table->ScriptingName().IsEmpty()) continue;
      if (cls_ClassRegistrar::InheritanceCheck(typeId, kprC_AnalysisStep::TypeId())) stepTypes_.push_back(table);
      if (table->StepState() != nullptr) objectTypes_.push_back(table);
    }
  }

  std::string Next(EditedModel const& model) {
    std::string const step = KnownStep(model);
    std::string const other = KnownStep(model);
    auto const [repository, object] = AnyObject(model);
    switch (choose_(16)) {
      case 0:
      case 1:
      case 2: {
        auto const& type = *stepTypes_[choose_(static_cast<unsigned>(stepTypes_.size()))];
        return "step " + AnyOf({"a", "b", "c", "d", "e", "f"}) + ' ' + type.ScriptingName().CStr() + " after=" + step +
               (choose_(8) == 0 ? Settings(type) : Usual(type));
      }
      case 3:
      case 4:
      case 5: {
        auto const& type = AnyObjectType();
        std::string const setting = choose_(2) == 0 ? UsualValue(*type.StepState()) : Settings(*type.StepState());
        return std::string("create ") + type.ScriptingName().CStr() + ' ' + AnyOf({"p", "q", "r", "s"}) +
               " createStepName=" + step + (choose_(4) == 0 ? Settings(type) : "") + setting;
      }
      case 6:
      case 7: {
        auto const& known = *model.FindRepository(repository);
        std::string line = "setInStep " + repository + ' ' + object + " stepName=" + step;
        if (!known.IsMember(object)) return line;
        auto const& state = *known.ConstGetObject(object).DynAttributes().StepState();
        return line + (choose_(2) == 0 ? UsualValue(state) : Settings(state));
      }
      case 8: return "deactivate " + repository + ' ' + object + " stepName=" + step;
      case 9: return "reset " + repository + ' ' + object + " stepName=" + step;
      case 10:
        return "move " + repository + ' ' + object + " fromStepName=" + step +
               " toStepName=" + other;
      case 11: return "copy " + repository + ' ' + object + " to=" + AnyOf({"p", "q", "r", "s"}) + " stepName=" + step;
      case 12: return AnyOf({"suppress ", "resume "}) + AnyOf({"steps " + step, repository + ' ' + object});
      case 13: return "remove " + AnyOf({"steps " + step, repository + ' ' + object});
      case 14:
        return "rename " + AnyOf({"steps " + step + " to=" + AnyOf({"a", "b", "f"}),
                                  repository + ' ' + object + " to=" + AnyOf({"p", "q", "r", "s"})});
      default: {
        auto const& type = *stepTypes_[choose_(static_cast<unsigned>(stepTypes_.size()))];
        return choose_(2) == 0 ? "replace " + step + ' ' + type.ScriptingName().CStr() + Usual(type)
                               : "set steps " + step + " suppress=" + AnyOf({"true", "false"});
      }
    }
  }

 private:
  std::string AnyOf(std::initializer_list<std::string> texts) {
    return *(texts.begin() + choose_(static_cast<unsigned>(texts.size())));
  }

  /// Most often an object that is there, with its repository.
  std::pair<std::string, std::string> AnyObject(EditedModel const& model) {
    std::vector<std::pair<std::string, std::string>> objects;
    for (kprC_StepRepository const* repository : model.Repositories()) {
      for (cow_String const& key : repository->Keys()) objects.push_back({repository->RepositoryName(), key.CStr()});
    }
    if (objects.empty() || choose_(16) == 0) {
      auto const repositories = model.Repositories();
      objects = {{repositories[choose_(static_cast<unsigned>(repositories.size()))]->RepositoryName(), "p"}};
    }
    return objects[choose_(static_cast<unsigned>(objects.size()))];
  }

  /// Half of the time one of those that most steps take.
  cls_AttributeTable const& AnyObjectType() {
    std::string const usual = AnyOf({"DisplacementBC", "ConcentratedForce", "TemperatureBC", "Pressure"});
    bool const any = choose_(2) == 0;
    std::size_t place = choose_(static_cast<unsigned>(objectTypes_.size()));
    for (std::size_t i = 0; i < objectTypes_.size() && !any; ++i) {
      if (objectTypes_[i]->ScriptingName() == usual.c_str()) place = i;
    }
    return *objectTypes_[place];
  }

  static std::string UsualValue(cls_AttributeTable const& state) {
    for (char const* key : {"u1", "c1", "magnitude"}) {
      if (state.Find(key) != nullptr) return std::string(" ") + key + "=2";
    }
    return "";
  }

  /// Most often the name of a step that is there.
  std::string KnownStep(EditedModel const& model) {
    if (choose_(16) == 0) return AnyOf({"a", "f"});
    auto const& steps = model.Steps().StepList();
    return steps[static_cast<int>(choose_(static_cast<unsigned>(steps.Length())))].stepName.CStr();
  }

  /// What makes a step of most procedures valid.
  static std::string Usual(cls_AttributeTable const& type) {
    std::string settings;
    for (char const* usual : {"initialInc=0.1", "minInc=0.01", "maxInc=1", "incSize=0.1", "numEigen=5", "vectors=9",
                              "frequencyRange=lower=1,upper=50", "substructureIdentifier=1"}) {
      std::string const setting = usual;
      if (type.Find(setting.substr(0, setting.find('='))) != nullptr) settings += ' ' + setting;
    }
    return settings;
  }

  std::string Settings(cls_AttributeTable const& table) {
    std::string settings;
    auto const& attributes = table.All();
    for (unsigned count = attributes.empty() ? 0 : 1 + choose_(3); count > 0; --count) {
      auto const& field = attributes[choose_(static_cast<unsigned>(attributes.size()))]->declared.field;
      if (field.name == "states") continue;
      settings += std::string(" ") + field.name.CStr() + '=' +
                  AnyOf({"1", "0", "2.5", "-1", "3", "SET", "UNSET", "FREED", "true", "false", "(default)", "x", "1e300"});
    }
    return settings;
  }

  Choose const choose_;
  std::vector<cls_AttributeTable const*> stepTypes_, objectTypes_;
};

/// A model with the script that it has lived through.
class LivingModel {
 public:
  /// Runs a line as the driver does; a refused one leaves the model as it was. What is broken then, empty if nothing is.
  std::string Run(std::string const& line) {
    script_ += line + '\n';
    EditedModel const before = model_;
    try {
      Execute({model_, out_}, ScriptLine(line));
    } catch (std::exception const&) {
      model_ = before;
      ++refused_;
    }
    std::string broken;
    if (dbc_EncodeObject(before.Model()) != bytes_) broken += "the edit shows in a copy taken before it\n";
    ModelInvariants const invariants(model_);
    bytes_ = invariants.Bytes();
    broken += invariants.Broken();
    return broken.empty() ? "" : broken + "after the script\n" + script_;
  }

  EditedModel const& Model() const { return model_; }
  int Refused() const { return refused_; }

 private:
  EditedModel model_;
  std::vector<std::uint8_t> bytes_ = ModelInvariants(model_).Bytes();
  std::string script_;
  std::ostringstream printed_;
  RowPrinter const out_{printed_, true};
  int refused_ = 0;
};
