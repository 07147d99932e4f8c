#include "omu_Histories.h"

void omu_ChangeHistory::addChange(cow_String const& path, omu_PrimTuple const& what) { changes_.Append({path, what}); }
void omu_ChangeHistory::addChange(omu_PrimTuple const& what) { changes_.Append({cow_String(), what}); }

void omu_ChangeHistory::DropFrom(int count) {
  while (changes_.Length() > count) {
    changes_.RemoveLast();
  }
}

void omu_CmdHistory::Add(cow_String const& command) { commands_.Append(command); }

void omu_CmdHistory::RemoveLast(bool quietly) {
  if (commands_.IsEmpty()) {
    return;
  }
  cow_String const last = commands_.Last();
  commands_.RemoveLast();
  if (!quietly) {
    omu_ChangeHistory::Instance().addChange(last, omu_PrimTuple{omu_Prim(cow_String("RemoveCommand"))});
  }
}
