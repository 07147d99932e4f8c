#include <cerrno>
#include <cstring>
#include <fstream>
#include <iostream>

#include "Commands.h"
#include "HtmlPage.h"
#include "TVOOdbAttrEO.h"

namespace {

constexpr char const* usage =
    "usage: edit_model [--format=table|tsv] [--keep-going] [--html FILE] [SCRIPT]\n"
    "Edits a model as the script says, or as standard input does. docs/edit_script.md describes the commands.\n"
    "Exit status: 0 done, 1 an edit was refused, 2 a line could not be read.\n";

enum ExitStatus { done = 0, refused = 1, unreadable = 2 };

struct Options {
  bool tabs = false;
  bool keepGoing = false;
  std::string html;
  std::string script;
};

/// Reads the command line; false if it has not the form that `usage` tells.
bool ReadOptions(int count, char** words, Options& options) {
  for (int i = 1; i < count; ++i) {
    std::string const word = words[i];
    if (word == "--keep-going") {
      options.keepGoing = true;
    } else if (word == "--format=tsv" || word == "--format=table") {
      options.tabs = word == "--format=tsv";
    } else if (word == "--html" && i + 1 < count) {
      options.html = words[++i];
    } else if (word.starts_with("--html=")) {
      options.html = word.substr(7);
    } else if (options.script.empty() && !word.empty() && (word == "-" || word.front() != '-')) {
      options.script = word;
    } else {
      return false;
    }
  }
  return true;
}

/// Runs the lines in their order. A refused one leaves the model as it was.
int RunScript(std::istream& script, EditedModel& model, Options const& options) {
  RowPrinter const out(std::cout, options.tabs);
  std::string text;
  for (int number = 1; std::getline(script, text); ++number) {
    std::string const place = "line " + std::to_string(number) + ": ";
    EditedModel const before = model;
    try {
      ScriptLine const line(text);
      if (!line.words.empty() || !line.settings.empty()) Execute({model, out}, line);
    } catch (Unreadable const& error) {
      model = before;
      out.Line(place + "error: " + InOneLine(error.what()));
      return unreadable;
    } catch (std::exception const& refusal) {
      model = before;
      out.Line(place + "refused: " + InOneLine(refusal.what()));
      if (!options.keepGoing) return refused;
    }
  }
  return done;
}

int Complain(std::string const& file) {
  std::cerr << "edit_model: " << file << ": " << std::strerror(errno) << '\n';
  return unreadable;
}

int Run(Options const& options) {
  std::ifstream file;
  bool const fromFile = !options.script.empty() && options.script != "-";
  if (fromFile) {
    file.open(options.script);
    if (!file) return Complain(options.script);
  }
  EditedModel model;
  std::istream& script = fromFile ? file : std::cin;
  int const status = RunScript(script, model, options);
  if (script.bad()) return Complain(fromFile ? options.script : "standard input");
  if (!options.html.empty()) {
    std::ofstream page(options.html, std::ios::binary);
    WriteHtmlPage(page, model);
    if (!page.flush()) return Complain(options.html);
  }
  return status;
}

}  // namespace

int main(int count, char** words) {
  Options options;
  if (count == 2 && std::string_view(words[1]) == "--help") {
    std::cout << usage;
    return done;
  }
  if (!ReadOptions(count, words, options)) {
    std::cerr << usage;
    return unreadable;
  }
  int depth = 0;
  TVOOdbAttrEO_initialize(depth);
  int const status = Run(options);
  TVOOdbAttrEO_finalize(depth);
  return status;
}
