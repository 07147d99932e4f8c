#include "TVOLowerLibraries.h"

#include "ddr_Model.h"
#include "ddr_Module.h"
#include "dtmC_DatumRef.h"
#include "rgnC_Region.h"

namespace {

/// What a library holds that has to be brought up; most of them hold only code.
template <class Library>
constexpr ddr_ModuleTables tablesOf = {};

#define DECLARE_TAG(Name) struct Name;
TVO_LOWER_LIBRARIES(DECLARE_TAG)
#undef DECLARE_TAG

constexpr ddr_ModuleClass modelClasses[] = {
#define CLASS(phase, ...) ddr_ClassOf<__VA_ARGS__>(phase),
#include "foundation_classes.inc"
#undef CLASS
};
template <>
constexpr ddr_ModuleTables tablesOf<TVORomCore> = {.classes = modelClasses};

constexpr ddr_ModuleContainer foundationTypes[] = {{&typ_InitializeFoundation, &typ_FinalizeFoundation}};
constexpr void (*registrarEnd[])() = {&cls_MetadataRegistrar::Finalize};
template <>
constexpr ddr_ModuleTables tablesOf<TVOBasCoreUtils> = {.containers = foundationTypes, .singletonEnds = registrarEnd};

template <class Library>
ddr_Module& LibraryOf() {
  static ddr_Module library(tablesOf<Library>);
  return library;
}

}  // namespace

#define DEFINE_LIBRARY(Name)                                                 \
  void Name##_initialize(int& depth) { LibraryOf<Name>().Initialize(depth); } \
  void Name##_finalize(int& depth) { LibraryOf<Name>().Finalize(depth); }
TVO_LOWER_LIBRARIES(DEFINE_LIBRARY)
#undef DEFINE_LIBRARY
