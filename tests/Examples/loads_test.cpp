// Loads by edit script: the driver knows them by the repository alone. EDIT_MODEL is the program's path.

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>

namespace {

/// What the program prints of a script, edits that are refused included.
std::string Printed(std::string const& script) {
  std::string const path = testing::TempDir() + "load_edits_" + std::to_string(getpid());
  std::ofstream(path) << script;
  std::string const command = std::string(EDIT_MODEL) + " --format=tsv --keep-going " + path;
  FILE* const pipe = popen(command.c_str(), "r");
  std::string out;
  char part[4096];
  for (std::size_t count; (count = fread(part, 1, sizeof part, pipe)) > 0;) out.append(part, count);
  EXPECT_EQ(WEXITSTATUS(pclose(pipe)), 0) << out;
  std::filesystem::remove(path);
  for (char& c : out) {
    if (c == '\t') c = '|';
  }
  return out;
}

std::string const steps = R"(step A StaticStep after=Initial initialInc=0.1 minInc=1e-5 maxInc=1
step B StaticStep after=A initialInc=0.1 minInc=1e-5 maxInc=1
step C FrequencyStep after=B numEigen=3
step D ModalDynamicsStep after=C incSize=0.1
step E StaticStep after=D initialInc=0.1 minInc=1e-5 maxInc=1
)";

}  // namespace

TEST(LoadEditsTest, TheRowsOfLoadsThroughEveryEdit) {
  std::string script = steps + "create ConcentratedForce x createStepName=A c1=1\n";
  auto const row = [&] {
    std::string const rows = Printed(script + "history loads\n");
    return rows.substr(rows.rfind("x|"));
  };
  EXPECT_EQ(row(), "x|NONE|CREATED|PROPAGATED|TYPE_INVALID|BUILT_IN|PROPAGATED\n");
  script += "setInStep loads x stepName=B c1=2\n";
  EXPECT_EQ(row(), "x|NONE|CREATED|MODIFIED|TYPE_INVALID|BUILT_IN|PROPAGATED\n");
  script += "deactivate loads x stepName=E\n";
  EXPECT_EQ(row(), "x|NONE|CREATED|MODIFIED|TYPE_INVALID|BUILT_IN|DEACTIVATED\n");
  script += "reset loads x stepName=E\nmove loads x fromStepName=B toStepName=E\n";
  EXPECT_EQ(row(), "x|NONE|CREATED|PROPAGATED|TYPE_INVALID|BUILT_IN|MODIFIED\n");
  script += "move loads x fromStepName=A toStepName=B\n";
  EXPECT_EQ(row(), "x|NONE|NONE|CREATED|TYPE_INVALID|BUILT_IN|MODIFIED\n");
}

TEST(LoadEditsTest, RefusesInTheLibrarysWordsAndLeavesTheModelAsItWas) {
  std::string const script = steps + R"(create ConcentratedForce x createStepName=A c1=1
create ConcentratedForce late createStepName=E c1=1
create ConcentratedForce shaken createStepName=D c1=1
create ConcentratedForce edited createStepName=A c1=1
setInStep loads edited stepName=B c1=2
setInStep loads edited stepName=E c1=3
create ConcentratedForce ended createStepName=A c1=1
deactivate loads ended stepName=B
create BoltLoad bolt createStepName=A magnitude=1
create Pressure off createStepName=A magnitude=1
suppress loads off
step F StaticStep after=E initialInc=0.1 minInc=1e-5 maxInc=1
create ConcentratedForce gone createStepName=E c1=1
deactivate loads gone stepName=F
suppress steps F
)";
  struct {
    char const* edit;
    char const* words;
  } const cases[] = {
      {"create Pressure y createStepName=Initial magnitude=1", "A load cannot be defined in the Initial step."},
      {"create Pressure y createStepName=C magnitude=1",
       "The specified type of load cannot be created or resumed in this type of step."},
      {"create Pressure y createStepName=A",
       "Load must be created with a non-zero magnitude unless utilizing a user subroutine."},
      {"create PipePressure y createStepName=A magnitude=1", "Effective pipe diameter must be greater than zero"},
      {"create BoltLoad y createStepName=B magnitude=1",
       "A bolt load can only be created in the first analysis step which must also be a general step."},
      {"set loads x distribution=FIELD",
       "A field name must be supplied when the distribution type is set to FIELD."},
      {"setInStep loads x stepName=D c1=2",
       "The load does not exist in the specified step or is suppressed or inactive."},
      {"deactivate loads x stepName=No", "The specified step either does not exist or is the Initial step."},
      {"deactivate loads x stepName=D", "Load defined in a previous base state cannot be deactivated."},
      {"deactivate loads x stepName=F", "Load cannot be deactivated in a suppressed step."},
      {"deactivate loads bolt stepName=B", "Bolt loads cannot be de-activated, there is no on/off behavior."},
      {"reset loads x stepName=A", "Cannot reset a load in the step it was created."},
      {"reset loads edited stepName=B", "Reset can only be used in the deactivated step."},
      {"reset loads gone stepName=F", "Reset cannot be used in a suppressed step."},
      {"move loads edited fromStepName=A toStepName=B",
       "Cannot move the load because the destination step is Created, Modified, or Deactivated."},
      {"move loads edited fromStepName=A toStepName=F",
       "Cannot move the load because an intermediate step is Created, Modified, or Deactivated."},
      {"move loads ended fromStepName=B toStepName=E", "Load to be moved must be active."},
      {"move loads x fromStepName=B toStepName=E", "There is no load modification to move in the indicated step."},
      {"move loads shaken fromStepName=D toStepName=F", "Cannot move a load defined in a perturbation step."},
      {"move loads x fromStepName=A toStepName=D", "Cannot move a load into a perturbation step."},
      {"move loads late fromStepName=E toStepName=F", "Loads cannot be moved to a suppressed step."},
      {"move loads x fromStepName=A toStepName=Initial", "A load cannot be defined in the Initial step."},
      {"move loads bolt fromStepName=A toStepName=B", "The creation of a bolt load cannot be moved."},
      {"copy loads off to=y stepName=B",
       "Suppressed load can only be copied to the step in which it was created."},
      {"copy loads x to=y stepName=F", "Step is either suppressed or does not exist."},
      {"copy loads x to=y stepName=C", "Invalid load for given step type."},
      {"copy loads x to=y stepName=Initial", "Invalid load for given step type."},
      // The bolts would no longer be there from the first step on.
      {"step Before StaticStep after=Initial initialInc=0.1 minInc=1e-5 maxInc=1",
       "A bolt load can only be created in the first analysis step which must also be a general step."},
  };
  std::string edits = script;
  std::string expected;
  int line = 20;
  for (auto const& [edit, words] : cases) {
    edits += std::string(edit) + "\n";
    expected += "line " + std::to_string(++line) + ": refused: " + words + "\n";
  }
  std::string const listing = "history\nshow loads x\nshow loads edited stepName=E\n";
  EXPECT_EQ(Printed(edits + listing), expected + Printed(script + listing));
}

TEST(LoadEditsTest, RefusesMovesBetweenStepsOfOtherProcedures) {
  struct {
    char const* script;
    char const* words;
  } const cases[] = {
      {R"(step X ExplicitDynamicsStep after=Initial
step Y AnnealStep after=X
create ConcentratedForce x createStepName=X c1=1
move loads x fromStepName=X toStepName=Y
deactivate loads x stepName=Y
create ConcentratedForce y createStepName=Y c1=1
)", "line 4: refused: Cannot move a load into an Anneal step.\nline 5: refused: Load is not active.\n"
    "line 6: refused: No loads are allowed in an Anneal step.\n"},
      {R"(step X ExplicitDynamicsStep after=Initial
step Y ExplicitDynamicsStep after=X
create ConcentratedForce x createStepName=Y c1=1
suppress steps Y
move loads x fromStepName=Y toStepName=X
)", "line 5: refused: Loads cannot be moved if created in a suppressed step.\n"},
      {R"(step F FlowStep after=Initial initialInc=0.1
step G FlowStep after=F initialInc=0.1
create BodyForce x createStepName=F c1=1
move loads x fromStepName=F toStepName=G
)", "line 4: refused: Cannot move this load. Flow step is no longer supported. \n"},
      {R"(step F StaticStep after=Initial initialInc=0.1 minInc=1e-5 maxInc=1
step G CoupledTempDisplacementStep after=F initialInc=0.1 minInc=1e-5 maxInc=1 deltmx=1
create SurfaceHeatFlux x createStepName=G magnitude=1
move loads x fromStepName=G toStepName=F
)", "line 4: refused: The specified type of load cannot be moved to this type of step.\n"},
  };
  for (auto const& [script, words] : cases) EXPECT_EQ(Printed(script), words);
}

TEST(LoadEditsTest, OffersLoadsBesideConditionsAndOpensWhatItSaved) {
  std::string const offered = Printed(steps + "offered D\n");
  EXPECT_NE(offered.find("mechanical|Concentrated force\n"), std::string::npos);
  EXPECT_NE(offered.find("acoustic|Inward volume acceleration\n"), std::string::npos);
  EXPECT_EQ(offered.find("Bolt load"), std::string::npos);
  EXPECT_EQ(Printed(steps + "offered C\n").find("Concentrated force"), std::string::npos);

  std::string const path = testing::TempDir() + "load_model_" + std::to_string(getpid());
  std::string const edits = steps + R"(create DisplacementBC held createStepName=Initial u1=0
create CoriolisForce turn createStepName=B magnitude=2 coordAxisPt2=0,0,1 region=Rotor
create SubstructureLoad sub createStepName=A m_LoadCaseNames=one,two
setInStep loads turn stepName=E magnitude=3 amplitude=Ramp
suppress steps B
)";
  std::string const listing = "history\nshow loads turn\nshow loads turn stepName=E\nshow loads sub stepName=D\n";
  std::string const before = Printed(edits + "save " + path + "\n" + listing);
  EXPECT_EQ(Printed("open " + path + "\n" + listing), before);
  std::filesystem::remove(path);
}
