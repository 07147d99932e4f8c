#include "Commands.h"

#include "omu_Histories.h"

namespace {

struct Command {
  std::string_view word;
  std::string_view usage;
  void (*run)(Context const&, Arguments const&);
  bool edits = true;
};

constexpr Command commands[] = {
    {"step", "NAME TYPE after=STEP [key=value ...]", &AddStep},
    {"replace", "NAME TYPE [key=value ...]", &ReplaceStep},
    {"create", "TYPE NAME createStepName=STEP [key=value ...]", &Create},
    {"set", "REPOSITORY NAME key=value ...", &Set},
    {"setInStep", "REPOSITORY NAME stepName=STEP key=value ...", &SetInStep},
    {"deactivate", "REPOSITORY NAME stepName=STEP", &Deactivate},
    {"reset", "REPOSITORY NAME stepName=STEP", &Reset},
    {"move", "REPOSITORY NAME fromStepName=STEP toStepName=STEP", &Move},
    {"copy", "REPOSITORY NAME to=NEWNAME stepName=STEP", &Copy},
    {"suppress", "REPOSITORY NAME", &Suppress},
    {"resume", "REPOSITORY NAME", &Resume},
    {"remove", "REPOSITORY NAME", &Remove},
    {"rename", "REPOSITORY NAME to=NEWNAME", &Rename},
    {"history", "[REPOSITORY]", &History, false},
    {"show", "REPOSITORY NAME [stepName=STEP]", &Show, false},
    {"invalid", "REPOSITORY", &Invalid, false},
    {"offered", "STEP", &Offered, false},
    {"appendable", "", &Appendable, false},
    {"save", "FILE", &Save},
    {"open", "FILE", &Open},
};

Command const& FindCommand(ScriptLine const& line) {
  std::string known;
  for (Command const& command : commands) {
    if (!line.words.empty() && command.word == line.words.front()) return command;
    known.append(known.empty() ? "" : ", ").append(command.word);
  }
  throw Unreadable("a command (" + known + ")");
}

/// Notes an edit as the last command while it runs, since changes are noted under it. A refused one leaves neither
/// itself nor its changes behind.
class NotedEdit {
 public:
  explicit NotedEdit(ScriptLine const& line) : changesBefore_(omu_ChangeHistory::Instance().Changes().Length()) {
    std::string text;
    for (std::string const& word : line.words) text.append(text.empty() ? "" : " ").append(word);
    omu_CmdHistory::Instance().Add(cow_String(text));
  }
  ~NotedEdit() {
    if (done_) return;
    omu_CmdHistory::Instance().RemoveLast(true);
    omu_ChangeHistory::Instance().DropFrom(changesBefore_);
  }
  NotedEdit(NotedEdit const&) = delete;
  NotedEdit& operator=(NotedEdit const&) = delete;
  void Done() noexcept { done_ = true; }

 private:
  int const changesBefore_;
  bool done_ = false;
};

}  // namespace

void Execute(Context const& context, ScriptLine const& line) {
  Command const& command = FindCommand(line);
  Arguments const arguments = CommandForm(command.word, command.usage).Read(line);
  if (!command.edits) return command.run(context, arguments);
  NotedEdit noted(line);
  command.run(context, arguments);
  noted.Done();
}

bool IsSteps(std::string const& name) { return name == kprC_Step::stepRepositoryCmd(); }

kprC_StepRepository const& ObjectsNamed(EditedModel const& model, std::string const& name) {
  if (auto const* const repository = model.FindRepository(name)) return *repository;
  std::string known;
  for (kprC_StepRepository const* repository : model.Repositories()) {
    known.append(known.empty() ? "" : ", ").append(repository->RepositoryName());
  }
  throw Unreadable("a repository of objects (" + known + "), not " + name);
}
