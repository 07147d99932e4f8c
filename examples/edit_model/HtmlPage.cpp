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
    WriteLegend();
    for (kprC_StepRepository const* repository : model_.Repositories()) {
      if (!repository->IsEmpty()) WriteRepository(*repository);
    }
    out_ << "</body>\n</html>\n";
  }

 private:
  void WriteLegend() {
    std::set<mdl_PropagationStatusEnm> statuses;
    for (kprC_StepRepository const* repository : model_.Repositories()) {
      for (cow_String const& key : repository->Keys()) {
        for (auto const status : repository->ConstGetObject(key).History()) statuses.insert(status);
      }
    }
    out_ << "<ul class=\"legend\" aria-label=\"Statuses\">\n";
    for (auto const status : statuses) {
      std::string const word = StatusWord(status);
      out_ << "<li class=\"status " << word << "\">" << word << "</li>\n";
    }
    out_ << "</ul>\n<p class=\"hint\">Values: <b>given</b> in the step, "
            "<span class=\"PROPAGATED\">inherited</span> from an earlier one. A crossed-out name is suppressed.</p>\n";
  }

  void WriteStepHeads() {
    for (cow_String const& name : steps_) {
      kprC_Step const& step = model_.Steps().ConstGet(name);
      int const procedure = model_.Procedure(name);
      out_ << "<th scope=\"col\">" << Name(name, step.suppress);
      if (procedure != 0) {
        auto const& labels = kprC_ProcedureTypeLabelMap::Instance();
        out_ << "<small>" << Escaped(atr_DisplayText(labels.ConstGet(static_cast<unsigned int>(procedure))))
             << "</small>";
      }
      out_ << "</th>";
    }
    out_ << "</tr></thead>\n<tbody>\n";
  }

  static std::string Name(cow_String const& name, bool suppressed) {
    return suppressed ? "<s title=\"suppressed\">" + Escaped(name) + "</s>" : Escaped(name);
  }

  void WriteRepository(kprC_StepRepository const& repository) {
    std::string const title = repository.RepositoryName();
    out_ << "<h2>" << Escaped(title)
         << "</h2>\n<div class=\"wide\"><table class=\"matrix\">\n<thead><tr><th scope=\"col\">name</th>";
    WriteStepHeads();
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
    }
    out_ << "</tbody></table></div>\n";
    for (int i = 0; i < keys.Length(); ++i) {
      out_ << "<section id=\"" << title << '-' << i << "\">\n";
      WriteObject(keys[i], repository.ConstGetObject(keys[i]));
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
    WriteValues(object);
  }

  /// A row a value, a column a step; values that no step has differ from those of a new object are left out.
  void WriteValues(kprC_StepObject const& object) {
    auto const untouched = AttributeRows(*NewObject(*object.DynAttributes().StepState()));
    std::vector<std::vector<AttributeRow>> columns;
    for (cow_String const& step : steps_) {
      kprC_StepState const* const state = object.StateIn(step);
      columns.push_back(state == nullptr ? std::vector<AttributeRow>() : AttributeRows(*state));
    }
    out_ << "<div class=\"wide\"><table class=\"values\">\n<thead><tr><th scope=\"col\">value</th>";
    WriteStepHeads();
    for (std::size_t i = 0; i < untouched.size(); ++i) {
      bool const told = std::any_of(columns.begin(), columns.end(),
                                    [&](auto const& column) { return !column.empty() && column[i] != untouched[i]; });
      if (!told) continue;
      out_ << "<tr><th scope=\"row\">" << untouched[i].key << "</th>";
      for (auto const& column : columns) WriteValue(column.empty() ? nullptr : &column[i]);
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
