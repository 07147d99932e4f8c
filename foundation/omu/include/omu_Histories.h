#pragma once

#include "TVOExport.h"
#include "cow_List.h"
#include "omu_Prim.h"
#include "thr_Singletons.h"

/// One noted change: where it happened and what it was.
struct omu_Change {
  cow_String path;  ///< empty if the change has no place of its own
  omu_PrimTuple what;
};

/// The changes noted since the last Clear(), in order; undo and displays live on them. One a thread.
class TVO_API omu_ChangeHistory : public thr_ThreadSingleton<omu_ChangeHistory> {
 public:
  void addChange(cow_String const& path, omu_PrimTuple const& what);
  void addChange(omu_PrimTuple const& what);
  cow_List<omu_Change> const& Changes() const noexcept { return changes_; }
  void Clear() { changes_.Clear(); }
  /// Keeps the first `count` changes: what was noted since then was undone.
  void DropFrom(int count);

 private:
  cow_List<omu_Change> changes_;
};

/// The commands given so far, in the scripting layer's words. One a thread.
class TVO_API omu_CmdHistory : public thr_ThreadSingleton<omu_CmdHistory> {
 public:
  void Add(cow_String const& command);
  cow_List<cow_String> const& GetHistory() const noexcept { return commands_; }
  /// Drops the last command; with `quietly` false the fact is noted as a change. Nothing happens if there is none.
  void RemoveLast(bool quietly);
  void Clear() { commands_.Clear(); }

 private:
  cow_List<cow_String> commands_;
};
