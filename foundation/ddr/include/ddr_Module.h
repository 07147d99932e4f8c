#pragma once

#include <optional>
#include <span>

#include "cls_Registrar.h"
#include "typ_Module.h"

/// Counts the callers that want something up. Only the first of them brings it up, and the last one takes it down.
class ddr_UseCount {
 public:
  /// True for the first caller, whose depth then rises by 1.
  bool Enter(int& depth) noexcept {
    if (uses_++ > 0) return false;
    ++depth;
    return true;
  }
  /// True for the last caller, whose depth then falls by 1. A call without a caller left has no effect.
  bool Leave(int& depth) noexcept {
    if (uses_ == 0 || --uses_ > 0) return false;
    --depth;
    return true;
  }

 private:
  int uses_ = 0;
};

/// A class as its module registers it: phases 3 and 4 for what others depend on, 7 for the ordinary classes.
struct ddr_ModuleClass {
  int phase;
  void (*registration)(cls_ClassRegistrar&);
  cls_AttributeTable const& (*attributes)();
};

template <class T>
constexpr ddr_ModuleClass ddr_ClassOf(int phase) {
  return {phase, &T::InitializeMetadata, &T::Attributes};
}

/// A container that a module hangs on the model, or whatever else has to be entered and taken out again.
struct ddr_ModuleContainer {
  void (*enter)();
  void (*remove)();
};

/// All that tells one module from another. The spans are of static tables.
struct ddr_ModuleTables {
  unsigned int id = 0;
  std::span<typ_Row const> types = {};
  std::span<ddr_ModuleContainer const> containers = {};
  std::span<ddr_ModuleClass const> classes = {};
  ddr_ModuleContainer oldClasses = {nullptr, nullptr};  ///< versions of classes that stand in older databases
  std::span<void (*const)()> singletonEnds = {};
  bool containersEndFirst = false;  ///< before the singletons, not after them
  void (*keep)() = nullptr;  ///< of a library that the linker must keep: a reference, not a step
};

/// A module or library as it is brought up and taken down; taking down leaves no trace of it.
///
/// A clash with what is entered already (a type table under the same number, a class under the same identifier) raises
/// nex_PrimException<cow_String, 3> and leaves the module up in part: it is a fault of the program, not of its input.
class TVO_API ddr_Module {
 public:
  explicit ddr_Module(ddr_ModuleTables const& tables) noexcept : tables_(tables) {}
  ddr_Module(ddr_Module const&) = delete;
  ddr_Module& operator=(ddr_Module const&) = delete;

  void Initialize(int& depth);
  void Finalize(int& depth);
  /// The type table; it can be had while the module is down, too.
  typ_ArchCompEntry ArchEntry();

 private:
  void EndSingletons() const;
  void RemoveContainers() const;

  ddr_ModuleTables tables_;
  ddr_UseCount uses_;
  std::optional<typ_Module> types_;
};

/// Declares TVOOdb<Module>_initialize(int&) and _finalize(int&), which bring the module up and take it down, and
/// <prefix>_ArchEntry(), its type table. Calls are counted, and `depth` tells the caller whether his was the one that
/// acted: it rises by 1 with the first start and falls by 1 with the last end. An end of a module that is down does nothing.
#define DDR_DECLARE_MODULE(Module, prefix)              \
  TVO_API void TVOOdb##Module##_initialize(int& depth); \
  TVO_API void TVOOdb##Module##_finalize(int& depth);   \
  TVO_API typ_ArchCompEntry prefix##_ArchEntry()

/// Defines them by the module's tables.
#define DDR_DEFINE_MODULE(Module, prefix, ...)                                          \
  static ddr_Module& prefix##_Module() {                                                \
    static ddr_Module module(__VA_ARGS__);                                              \
    return module;                                                                      \
  }                                                                                     \
  void TVOOdb##Module##_initialize(int& depth) { prefix##_Module().Initialize(depth); } \
  void TVOOdb##Module##_finalize(int& depth) { prefix##_Module().Finalize(depth); }     \
  typ_ArchCompEntry prefix##_ArchEntry() { return prefix##_Module().ArchEntry(); }
