#include "HtmlPage.h"

#include <algorithm>
#include <set>

#include "AttributeText.h"
#include "Commands.h"
#include "HtmlStyle.h"
#include "kprC_ProcedureTypeLabelMap.h"

namespace {

std::string Escaped(std::string_view text) {
  std::string escaped;
  for (char const c : text) {
    switch (c) {
      case '&': escaped += "&amp;"; break;
      case '<': escaped += "&lt;"; break;
      case '>': escaped += "&gt;"; break;
      case '"': escaped += "&quot;"; break;
      default: escaped += c;
    }
  }
  return escaped;
}

std::string Escaped(atr_StringBase const& text) { return Escaped(text.View()); }

class Page {
 public:
  Page(std::ostream& out, EditedModel const& model) : out_(out), model_(model), steps_(model.Steps().Keys()) {}

  void Write() {
    out_ << "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
            "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
            "<title>Model over its steps</title>\n<style>\n"
         << htmlStyle << "</style>\n</head>\n<body>\n<h1>Model over its steps</h1>\n";
    WriteSteps();
    WriteLegend();
    for (kprC_StepRepository const* repository : model_.Repositories()) {
      if (!repository->IsEmpty()) WriteRepository(*repository);
    }
    out_ << "</body>\n</html>\n";
  }

 private:
  /// The values of an object: those of each step, none where the object holds no state. Told are those that some step
  /// has otherwise than a new object.
  struct Values {
    std::vector<std::vector<AttributeRow>> columns;
    std::vector<std::size_t> told;
  };

  void WriteSteps() {
    out_ << "<h2>" << kprC_Step::stepRepositoryCmd() << "</h2>\n";
    WriteTableHead("steps", "name");
    out_ << "<tr><th scope=\"row\">procedure</th>";
    for (cow_String const& name : steps_) out_ << "<td>" << Escaped(ProcedureLabel(name)) << "</td>";
    out_ << "</tr>\n<tr><th scope=\"row\">suppressed</th>";
    for (cow_String const& name : steps_) {
      out_ << "<td>" << (model_.Steps().ConstGet(name).suppress ? "yes" : "no") << "</td>";
    }
    out_ << "</tr>\n</tbody></table></div>\n";
  }

  std::string ProcedureLabel(cow_String const& step) const {
    int const procedure = model_.Procedure(step);
    if (procedure == 0) return kprC_InitialStepName();
    auto const& labels = kprC_ProcedureTypeLabelMap::Instance();
    return std::string(atr_DisplayText(labels.ConstGet(static_cast<unsigned int>(procedure))).View());
  }

  void WriteLegend() {
    std::set<mdl_PropagationStatusEnm> statuses;
    for (kprC_StepRepository const* repository : model_.Repositories()) {
      for (cow_String const& key : repository->Keys()) {
        for (auto const status : repository->ConstGetObject(key).History()) statuses.insert(status);
      }
    }
    if (statuses.empty()) return;
    out_ << "<ul class=\"legend\" aria-label=\"Statuses\">\n";
    for (auto const status : statuses) {
      std::string const word = StatusWord(status);
      out_ << "<li class=\"status " << word << "\">" << word << "</li>\n";
    }
    out_ << "</ul>\n<p class=\"hint\">A crossed-out name is suppressed.</p>\n";
  }

  /// Opens a table with a column for each step, up to its first row.
  void WriteTableHead(char const* kind, char const* corner) {
    out_ << "<div class=\"wide\"><table class=\"" << kind << "\">\n<thead><tr><th scope=\"col\">" << corner << "</th>";
    for (cow_String const& name : steps_) {
      out_ << "<th scope=\"col\">" << Name(name, model_.Steps().ConstGet(name).suppress) << "</th>";
    }
    out_ << "</tr></thead>\n<tbody>\n";
  }

  static std::string Name(cow_String const& name, bool suppressed) {
    return suppressed ? "<s title=\"suppressed\">" + Escaped(name) + "</s>" : Escaped(name);
  }

  void WriteRepository(kprC_StepRepository const& repository) {
    std::string const title = repository.RepositoryName();
    out_ << "<h2>" << Escaped(title) << "</h2>\n";
    WriteTableHead("matrix", "name");
    std::vector<Values> values;
    cow_List<cow_String> const keys = repository.Keys();
    for (int i = 0; i < keys.Length(); ++i) {
      kprC_StepObject const& object = repository.ConstGetObject(keys[i]);
      out_ << "<tr><th scope=\"row\"><a href=\"#" << title << '-' << i << "\">"
           << Name(keys[i], object.suppressionState != RESUMED) << "</a></th>";
      for (auto const status : object.History()) {
        std::string const word = StatusWord(status);
        out_ << "<td class=\"status " << word << "\">" << word << "</td>";
      }
      out_ << "</tr>\n";
      values.push_back(ValuesOf(object));
    }
    out_ << "</tbody></table></div>\n";
    if (std::any_of(values.begin(), values.end(), [](Values const& some) { return !some.told.empty(); })) {
      out_ << "<p class=\"hint\">Values: <b>given</b> in the step, "
              "<span class=\"PROPAGATED\">inherited</span> from an earlier one.</p>\n";
    }
    for (int i = 0; i < keys.Length(); ++i) {
      out_ << "<section id=\"" << title << '-' << i << "\">\n";
      WriteObject(keys[i], repository.ConstGetObject(keys[i]));
      WriteValues(values[static_cast<std::size_t>(i)]);
      out_ << "</section>\n";
    }
  }

  void WriteObject(cow_String const& key, kprC_StepObject const& object) {
    out_ << "<h3>" << Name(key, object.suppressionState != RESUMED) << " <small>"
         << Escaped(object.DynAttributes().ScriptingName()) << "</small></h3>\n<p>";
    for (AttributeRow const& row : AttributeRows(object)) {
      if (!row.value.empty()) out_ << "<span class=\"own\">" << row.key << " = " << Escaped(row.value) << "</span> ";
    }
    out_ << "</p>\n";
  }

  Values ValuesOf(kprC_StepObject const& object) const {
    auto const untouched = AttributeRows(*NewObject(*object.DynAttributes().StepState()));
    Values values;
    for (cow_String const& step : steps_) {
      kprC_StepState const* const state = object.StateIn(step);
      values.columns.push_back(state == nullptr ? std::vector<AttributeRow>() : AttributeRows(*state));
    }
    for (std::size_t i = 0; i < untouched.size(); ++i) {
      bool const told = std::any_of(values.columns.begin(), values.columns.end(), [&](auto const& column) {
        return !column.empty() && column[i] != untouched[i];
      });
      if (told) values.told.push_back(i);
    }
    return values;
  }

  /// A row a value, a column a step.
  void WriteValues(Values const& values) {
    if (values.told.empty()) return;
    auto const held = std::find_if(values.columns.begin(), values.columns.end(),
                                   [](auto const& column) { return !column.empty(); });
    WriteTableHead("values", "value");
    for (std::size_t const i : values.told) {
      out_ << "<tr><th scope=\"row\">" << (*held)[i].key << "</th>";
      for (auto const& column : values.columns) WriteValue(column.empty() ? nullptr : &column[i]);
      out_ << "</tr>\n";
    }
    out_ << "</tbody></table></div>\n";
  }

  void WriteValue(AttributeRow const* row) {
    if (row == nullptr) {
      out_ << "<td class=\"absent\">&ndash;</td>";
      return;
    }
    bool const given = row->state.empty() || row->state == "SET" || row->state == "PROPAGATED";
    out_ << "<td class=\"" << row->state << "\">" << Escaped(given ? row->value : row->state) << "</td>";
  }

  std::ostream& out_;
  EditedModel const& model_;
  cow_List<cow_String> const steps_;
};

}  // namespace

void WriteHtmlPage(std::ostream& out, EditedModel const& model) { Page(out, model).Write(); }
