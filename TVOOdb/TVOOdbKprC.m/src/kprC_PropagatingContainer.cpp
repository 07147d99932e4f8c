#include "kprC_PropagatingContainerCode.h"

namespace {

omu_PrimTuple Change(char const* what, cow_String const& key) {
  return omu_PrimTuple{omu_Prim(cow_String(what)), omu_Prim(key)};
}

}  // namespace

void kprC_NoteChange(char const* what, cow_String const& key) {
  thr_ThreadSingleton<omu_ChangeHistory>::Instance().addChange(Change(what, key));
}

void kprC_NoteChangeOfCommand(char const* what, cow_String const& key) {
  auto const& commands = thr_ThreadSingleton<omu_CmdHistory>::Instance().GetHistory();
  if (!commands.IsEmpty()) {
    cow_String const path = commands.Last() + cow_String(".") + key;
    thr_ThreadSingleton<omu_ChangeHistory>::Instance().addChange(path, Change(what, key));
  }
}
