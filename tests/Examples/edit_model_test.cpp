// Runs the edit_model program on small scripts and compares what it prints to the letter, a bar standing for a tab.
// EDIT_MODEL is the program's path, BRACKET_EDITS that of the example script.

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

namespace {

/// A folder for the files of this process.
struct Scratch {
  Scratch() { std::filesystem::create_directories(path); }
  ~Scratch() { std::filesystem::remove_all(path); }
  std::string const path = testing::TempDir() + "edit_model_" + std::to_string(getpid()) + "/";
} const scratchFolder;
std::string const& scratch = scratchFolder.path;

struct Result {
  std::string out;
  int status = -1;
};

std::string FileText(std::string const& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

Result RunCommand(std::string const& command) {
  Result result;
  FILE* const pipe = popen(command.c_str(), "r");
  char part[4096];
  for (std::size_t count; (count = fread(part, 1, sizeof part, pipe)) > 0;) result.out.append(part, count);
  result.status = WEXITSTATUS(pclose(pipe));
  std::replace(result.out.begin(), result.out.end(), '\t', '|');
  return result;
}

Result RunScript(std::string const& script, std::string const& options = "--format=tsv") {
  std::ofstream(scratch + "edits") << script;
  return RunCommand(EDIT_MODEL " " + options + " " + scratch + "edits");
}

std::string const abcd = R"(
step A StaticStep after=Initial initialInc=0.1 minInc=1e-5 maxInc=1
step B StaticStep after=A initialInc=0.1 minInc=1e-5 maxInc=1
step C StaticStep after=B initialInc=0.1 minInc=1e-5 maxInc=1
step D StaticStep after=C initialInc=0.1 minInc=1e-5 maxInc=1
)";
std::string const modal = R"(
step A StaticStep after=Initial initialInc=0.1 minInc=1e-5 maxInc=1
step B StaticStep after=A initialInc=0.1 minInc=1e-5 maxInc=1
step C FrequencyStep after=B numEigen=3
step D ModalDynamicsStep after=C incSize=0.1
step E StaticStep after=D initialInc=0.1 minInc=1e-5 maxInc=1
)";

/// The last row that the script's last `history` prints.
std::string LastRow(std::string const& script) {
  Result const result = RunScript(script + "history boundaryConditions\n");
  EXPECT_EQ(result.status, 0) << result.out;
  std::string const rows = result.out.substr(0, result.out.find_last_not_of('\n') + 1);
  return rows.substr(rows.rfind('\n') + 1);
}

}  // namespace

TEST(EditModelTest, DerivesTheRowsOfOneObjectEditByEdit) {
  std::string script = abcd + "create DisplacementBC x createStepName=A u1=1\n";
  EXPECT_EQ(LastRow(script), "x|NONE|CREATED|PROPAGATED|PROPAGATED|PROPAGATED");
  script += "setInStep boundaryConditions x stepName=C u1=2\n";
  EXPECT_EQ(LastRow(script), "x|NONE|CREATED|PROPAGATED|MODIFIED|PROPAGATED");
  EXPECT_EQ(LastRow(script + "suppress steps C\n"), "x|NONE|CREATED|PROPAGATED|MODIFIED|PROPAGATED");
  script += "deactivate boundaryConditions x stepName=D\n";
  EXPECT_EQ(LastRow(script), "x|NONE|CREATED|PROPAGATED|MODIFIED|DEACTIVATED");
  EXPECT_EQ(LastRow(script + "suppress steps D\nstep E StaticStep after=D initialInc=1 minInc=1 maxInc=1\n"),
            "x|NONE|CREATED|PROPAGATED|MODIFIED|DEACTIVATED|PROPAGATED");
  script += "reset boundaryConditions x stepName=D\n";
  EXPECT_EQ(LastRow(script), "x|NONE|CREATED|PROPAGATED|MODIFIED|PROPAGATED");
  script += "move boundaryConditions x fromStepName=A toStepName=B\n";
  EXPECT_EQ(LastRow(script), "x|NONE|NONE|CREATED|MODIFIED|PROPAGATED");
}

TEST(EditModelTest, TheStepBehindAPerturbationReturnsToTheBase) {
  EXPECT_EQ(LastRow(R"(
step A StaticStep after=Initial initialInc=0.1 minInc=1e-5 maxInc=1
step B StaticStep after=A initialInc=0.1 minInc=1e-5 maxInc=1
step C FrequencyStep after=B numEigen=3
step D StaticStep after=C initialInc=0.1 minInc=1e-5 maxInc=1
create DisplacementBC x createStepName=A u1=1
)"),
            "x|NONE|CREATED|PROPAGATED|BASE_PROPAGATED|PROPAGATED");
}

TEST(EditModelTest, APerturbationStartsFromZeroAndLeavesNoTrace) {
  std::string const script = modal + "create DisplacementBC x createStepName=A u1=1\n";
  EXPECT_EQ(LastRow(script), "x|NONE|CREATED|PROPAGATED|BASE_PROPAGATED|BASE_BUILT_IN|PROPAGATED");
  auto const shown = [&](std::string const& step) {
    std::string const rows = RunScript(script + "show boundaryConditions x stepName=" + step + "\n").out;
    return rows.substr(0, rows.find("u2|"));
  };
  EXPECT_EQ(shown("C"), "deactivate|false|\namplitude||UNSET\nu1|0|PROPAGATED\n");
  EXPECT_EQ(shown("D"), "(none)\n");
  EXPECT_EQ(shown("E"), "deactivate|false|\namplitude||UNSET\nu1|1|PROPAGATED\n");
}

TEST(EditModelTest, ShowsValuesAsTheyAreTyped) {
  std::string const edits = abcd + R"(
create DisplacementBC x createStepName=B u1=0.1 u2=1e-300 u3=SET ur1=UNSET amplitude="A # 1" region="Top face" # new
show boundaryConditions x
show boundaryConditions x stepName=B
show boundaryConditions x stepName=A
setInStep boundaryConditions x stepName=C u1=FREED cU1real=2.5 buckleCase=BUCKLING_MODES
show boundaryConditions x stepName=C
)";
  std::string const otherComplexValues = R"(cU1imag|0|
cU2real|0|
cU2imag|0|
cU3real|0|
cU3imag|0|
cUR1real|0|
cUR1imag|0|
cUR2real|0|
cUR2imag|0|
cUR3real|0|
cUR3imag|0|
)";
  EXPECT_EQ(RunScript(edits).out, R"(suppressionState|RESUMED|
region|Top face|
csys||
distribution|UNIFORM|
fieldName||
fixed|false|
deactivate|false|
amplitude|A # 1|SET
u1|0.1|SET
u2|1e-300|SET
u3|0|SET
ur1|0|UNSET
ur2|0|UNSET
ur3|0|UNSET
cU1real|0|
)" + otherComplexValues + R"(buckleCase|NOT_APPLICABLE|
(none)
deactivate|false|
amplitude|A # 1|PROPAGATED
u1|0|FREED
u2|1e-300|PROPAGATED
u3|0|PROPAGATED
ur1|0|UNSET
ur2|0|UNSET
ur3|0|UNSET
cU1real|2.5|
)" + otherComplexValues + "buckleCase|BUCKLING_MODES|\n");
  std::string const step = RunScript(abcd + "show steps A\n").out;
  for (char const* row : {"restart|(none)|\n", "initialInc|0.1|\n", "adaptiveDampingRatio|(default)|\n",
                          "suppress|false|\n", "extrapolation|LINEAR|\n"}) {
    EXPECT_NE(step.find(row), std::string::npos) << row;
  }
}

TEST(EditModelTest, CarriesEveryChangeOfTheStepsToTheObjects) {
  std::string const objects = modal + R"(
create DisplacementBC held createStepName=Initial u1=0
create VelocityBC fast createStepName=B v1=2
create DisplacementBC late createStepName=E u2=1
)";
  struct {
    char const* edits;
    char const* printed;
  } const cases[] = {
      {"step N StaticStep after=A initialInc=1 minInc=1 maxInc=1\n", R"(name|Initial|A|N|B|C|D|E
fast|NONE|NONE|NONE|CREATED|TYPE_INVALID|BASE_BUILT_IN|PROPAGATED
held|CREATED|PROPAGATED|PROPAGATED|PROPAGATED|BASE_PROPAGATED|BASE_BUILT_IN|PROPAGATED
late|NONE|NONE|NONE|NONE|NONE|NONE|CREATED
)"},
      {"remove steps B\n", R"(name|Initial|A|C|D|E
held|CREATED|PROPAGATED|BASE_PROPAGATED|BASE_BUILT_IN|PROPAGATED
late|NONE|NONE|NONE|NONE|CREATED
)"},
      {"replace B FrequencyStep numEigen=2\ninvalid boundaryConditions\n", R"(fast
name|Initial|A|B|C|D|E
fast|NONE|NONE|CREATED|INSTANCE_INVALID|INSTANCE_INVALID|INSTANCE_INVALID
held|CREATED|PROPAGATED|BASE_PROPAGATED|BASE_PROPAGATED|BASE_BUILT_IN|PROPAGATED
late|NONE|NONE|NONE|NONE|NONE|CREATED
)"},
      {"rename steps B to=E\n", R"(name|Initial|A|E|C|D
fast|NONE|NONE|CREATED|TYPE_INVALID|BASE_BUILT_IN
held|CREATED|PROPAGATED|PROPAGATED|BASE_PROPAGATED|BASE_BUILT_IN
)"},
      {"step B StaticStep after=E initialInc=1 minInc=1 maxInc=1\n", R"(name|Initial|A|C|D|E|B
held|CREATED|PROPAGATED|BASE_PROPAGATED|BASE_BUILT_IN|PROPAGATED|PROPAGATED
late|NONE|NONE|NONE|NONE|CREATED|PROPAGATED
)"},
  };
  for (auto const& [edits, printed] : cases) {
    EXPECT_EQ(RunScript(objects + edits + "history boundaryConditions\n").out, printed) << edits;
  }
}

TEST(EditModelTest, WhatAStepSuppressesIsResumedOrOutlivesIt) {
  auto const after = [](std::string const& edits) {
    std::string const script = abcd + "create DisplacementBC x createStepName=B u1=1\nsuppress steps B\n" + edits;
    Result const result = RunScript(script + "\nshow boundaryConditions x\n");
    return result.out.substr(0, result.out.find('\n'));
  };
  EXPECT_EQ(after("invalid boundaryConditions"), "x");
  EXPECT_EQ(after(""), "suppressionState|SUPPRESSED_STEP|");
  EXPECT_EQ(after("suppress boundaryConditions x"), "suppressionState|SUPPRESSED_BOTH|");
  EXPECT_EQ(after("suppress boundaryConditions x\nresume steps B"), "suppressionState|SUPPRESSED_ATTRIBUTE|");
  EXPECT_EQ(after("resume steps B"), "suppressionState|RESUMED|");
  EXPECT_EQ(after("set steps B suppress=false description=\"on again\""), "suppressionState|RESUMED|");
  EXPECT_EQ(after("replace B FrequencyStep numEigen=2"), "suppressionState|SUPPRESSED_ATTRIBUTE|");
  EXPECT_EQ(after("replace B StaticStep initialInc=1 minInc=1 maxInc=1"), "suppressionState|RESUMED|");
  EXPECT_EQ(after("resume boundaryConditions x"),
            "line 8: refused: Cannot resume while the step is still suppressed.  Resume the step first.");
}

TEST(EditModelTest, RefusesInTheLibrarysWordsAndLeavesTheModelAsItWas) {
  std::string const script = modal + "create DisplacementBC x createStepName=B u1=1\n" +
                             "step F SteadyStateDirectStep after=E frequencyRange=lower=1,upper=9\n";
  struct {
    std::string edit;
    char const* message;
  } const cases[] = {
      {"step N StaticStep after=A", "Initial increment must be greater than zero"},
      {"step N StaticStep after=No initialInc=1 minInc=1 maxInc=1", "There is no step by that name"},
      {"step N ModalDynamicsStep after=A incSize=1", "Invalid sequence of steps"},
      {"step C FrequencyStep after=D numEigen=3", "Invalid sequence of steps"},
      {"step A StaticStep after=A initialInc=1 minInc=1 maxInc=1", "There is no step by that name"},
      {"step Initial StaticStep after=A initialInc=1 minInc=1 maxInc=1", "The Initial step cannot be replaced."},
      {"step Initial StaticStep after=Initial initialInc=1 minInc=1 maxInc=1", "The Initial step cannot be replaced."},
      {"rename steps A to=Initial", "The Initial step cannot be replaced."},
      {"rename steps Initial to=X", "The Initial step cannot be replaced."},
      {"replace Initial StaticStep initialInc=1 minInc=1 maxInc=1", "The Initial step cannot be replaced."},
      {"replace No StaticStep", "No"},
      {"remove steps C", "Invalid sequence of steps"},
      {"suppress steps C", "The step cannot be suppressed if it results in an invalid sequence of steps."},
      {"set steps C suppress=true", "The step cannot be suppressed if it results in an invalid sequence of steps."},
      {"suppress steps Initial", "The Initial step cannot be suppressed."},
      {"set steps Initial suppress=true", "The Initial step cannot be suppressed."},
      {"remove steps Initial", "Invalid step index"},
      {"set steps A timePeriod=2 initialInc=-1", "Initial increment must be greater than zero"},
      {"set steps F timePeriod=2 frequencyRange=nPoints=5;nPoints=0",
       "Invalid number of frequency range calculation points"},
      {"replace F SteadyStateDirectStep frequencyRange=lower=2,upper=1", "Invalid frequency range values"},
      {"step N ExplicitDynamicsStep after=Initial massScaling=occurs=THROUGHOUT_STEP",
       "Target time increment must be greater than zero"},
      {"rename steps No to=Yes", "No"},
      {"create DisplacementBC y createStepName=No u1=0", "Unknown step type."},
      {"create DisplacementBC x createStepName=Initial u1=1", "Non-zero boundary condition in initial step."},
      {"create DisplacementBC y createStepName=A u1=FREED", "Invalid propagation status for 'u1' attribute."},
      {"set boundaryConditions x fixed=true", "Cannot prescribe a displacement when it is to be fixed."},
      {"set boundaryConditions x distribution=FIELD",
       "A field name must be supplied when the distribution type is set to FIELD."},
      {"setInStep boundaryConditions x stepName=A u1=2", "The boundary condition is STATUS_NONE in step: A."},
      {"setInStep boundaryConditions x stepName=E u1=UNSET", "Invalid propagation status for 'u1' attribute."},
      {"deactivate boundaryConditions x stepName=No", "Unknown step type."},
      {"reset boundaryConditions x stepName=B", "Cannot reset a boundary condition in the step it was created."},
      {"move boundaryConditions x fromStepName=B toStepName=C",
       "Cannot move a boundary condition into a perturbation step."},
      {"copy boundaryConditions x to=y stepName=No", "Step is either suppressed or does not exist."},
      {"resume boundaryConditions No", "No"},
      {"remove boundaryConditions No", "No"},
      {"rename boundaryConditions No to=Yes", "No"},
      {"show boundaryConditions x stepName=No", "No"},
      {"offered No", "No"},
      {"open /no/such/file", "/no/such/file: cannot be opened: No such file or directory"},
  };
  std::string const listing =
      "history\nshow boundaryConditions x\nshow boundaryConditions x stepName=E\nshow steps A\nshow steps C\n"
      "show steps F\n";
  // The initial step is in force anyway: to resume it is no edit.
  std::string edits = script + "resume steps Initial\n";
  std::string expected;
  int line = 9;
  for (auto const& [edit, message] : cases) {
    edits += edit + "\n";
    expected += "line " + std::to_string(++line) + ": refused: " + message + "\n";
  }
  Result const all = RunScript(edits + listing, "--format=tsv --keep-going");
  EXPECT_EQ(all.out, expected + RunScript(script + listing).out);
  EXPECT_EQ(all.status, 0);

  Result const first = RunScript(script + "remove steps C\nhistory\n");
  EXPECT_EQ(first.out, "line 9: refused: Invalid sequence of steps\n");
  EXPECT_EQ(first.status, 1);
}

TEST(EditModelTest, SaysWhatItExpectedOfALineThatCannotBeRead) {
  std::string const x = "create DisplacementBC x createStepName=A u1=1 ";
  for (auto const& [line, expected] : std::initializer_list<std::pair<std::string, std::string>>{
           {"jump", "a command (step, replace, "},
           {"a=b", "a command (step, replace, "},
           {"step N StaticStep", "step NAME TYPE after=STEP [key=value ...]\n"},
           {"step N DisplacementBC after=A", "a type of step ("},
           {"create StaticStep N createStepName=A", "a type of object ("},
           {x + "u1=2x", "a number for u1\n"},
           {x + "fixed=maybe", "true or false for fixed\n"},
           {x + "u7=1", "one of the keys suppressionState, "},
           {"set boundaryConditions x", "set REPOSITORY NAME key=value ...\n"},
           {"set boundaryConditions x u1=1", "one of the keys suppressionState, "},
           {"set steps A restart=x", "no text: an object stands here for restart\n"},
           {"move boundaryConditions x fromStepName=A fromStepName=B",
            "move REPOSITORY NAME fromStepName=STEP toStepName=STEP\n"},
           {"history steps", "a repository of objects ("},
           {"create DisplacementBC \"y", "a double quote at the end of the value\n"},
       }) {
    Result const result =
        RunScript(abcd + "create DisplacementBC x createStepName=A u1=1\n" + line + "\nhistory\n", "--keep-going");
    EXPECT_TRUE(result.out.starts_with("line 7: error: expected " + expected)) << line << '\n' << result.out;
    EXPECT_EQ(result.out.find('\n'), result.out.size() - 1) << line;
    EXPECT_EQ(result.status, 2) << line;
  }
}

TEST(EditModelTest, OpensWhatItSavedWithValuesStatusesAndIdentities) {
  std::string const a = scratch + "a";
  std::string const b = scratch + "b";
  std::string const listing =
      "history\nshow boundaryConditions x\nshow boundaryConditions x stepName=E\nshow steps C\nappendable\n";
  std::string const edits =
      modal +
      "create DisplacementBC x createStepName=B u1=1 region=Set\ncreate VelocityBC v createStepName=A v1=2\n"
      "setInStep boundaryConditions x stepName=E u2=0.1\nsuppress steps D\nsuppress boundaryConditions v\n";
  std::string const before = RunScript(edits + "save " + a + "\n" + listing).out;
  EXPECT_EQ(RunScript("open " + a + "\n" + listing + "save " + b + "\n").out, before);
  EXPECT_EQ(FileText(a), FileText(b));
  // Steps and objects of an opened model know each other as before.
  EXPECT_EQ(LastRow("open " + a + "\nresume boundaryConditions v\nremove steps B\n"),
            "v|NONE|CREATED|TYPE_INVALID|BASE_BUILT_IN|PROPAGATED");
}

TEST(EditModelTest, OpensEveryProcedureAsItWasSaved) {
  // A new step takes what it needs and is valid then; not all of them may stand in one model.
  std::string const inc = " initialInc=0.1 minInc=1e-5 maxInc=0.5 ";
  std::string const sweep = " frequencyRange=\"lower=1,upper=50;lower=50,upper=500,nPoints=5\"";
  std::vector<std::vector<std::string>> const models{
      {"GeostaticStep utol=1" + inc, "SoilsStep utol=1 end=1e-3" + inc, "StaticStep fullyPlastic=Web" + inc,
       "ViscoStep cetol=1e-3 integration=EXPLICIT_ONLY" + inc, "DirectCyclicStep deltmx=1 fatigue=true" + inc,
       "ImplicitDynamicsStep alpha=-0.05 initialCondition=OFF" + inc,
       "StaticRiksStep initialArcInc=0.1 monitorNodeOn=true region=Tip monitorDof=2"},
      {"CoupledTempDisplacementStep deltmx=1 creepIntegration=IMPLICIT" + inc,
       "ElecThermalStructuralStep cetol=1e-3 creepIntegration=CREEP_OFF" + inc},
      {"HeatTransferStep mxdem=0.2" + inc, "CoupledThermalElectricStep response=STEADY_STATE" + inc},
      {"MassDiffusionStep end=0.1" + inc},
      {"CoupledThermalElectrochemicalStep solutionTechnique=SEPARATED" + inc},
      {"CoupledThermalElectrochemStructStep deltmx=1" + inc},
      {"CoupledThermalElectrochemStructPorepressureStep deltmx=1 advection=true" + inc},
      {"FrequencyStep numEigen=3", "SubspaceDynamicsStep incSize=0.1 vectors=3"},
      {"ExplicitDynamicsStep timeIncrementationMethod=AUTOMATIC_EBE"
       " massScaling=\"factor=2;occurs=THROUGHOUT_STEP,dt=1e-6,frequency=10\"",
       "AnnealStep refTemp=20",
       "TempDisplacementDynamicsStep timeIncrementationMethod=FIXED_EBE"},
      {"StaticStep" + inc, "StaticLinearPerturbationStep solutionTechnique=LCP_CONTACT gapDistance=0.1",
       "BuckleStep numEigen=3 vectors=9",
       std::string("SubstructureGenerateStep substructureIdentifier=7 globalDamping=MECHANICAL modeRange=start=1,end=9") +
       " retainedDofsList=\"region=Top face,dofs=1,2,3;region=Tip,dofs=1\"",
       "ReducedBasisGenerateStep", "FrequencyStep numEigen=5", "ComplexFrequencyStep frictionDamping=true",
       "ModalDynamicsStep incSize=0.1", "RandomResponseStep freq=lower=1,upper=50 selectedEigenmodes=1,3",
       "ResponseSpectrumStep components=spectrum=Site,x=1,timeDuration=20 summation=DSC",
       "SteadyStateModalStep" + sweep, "SteadyStateSubspaceStep projection=CONSTANT" + sweep,
       "SteadyStateDirectStep scale=LINEAR" + sweep},
      {"EmagTimeHarmonicStep" + sweep},
      {"FlowStep energyEquation=TEMPERATURE turbulenceModel=KEPS_RNG advectionFactor=GALERKIN", "FlowStep"},
  };
  std::string const a = scratch + "a";
  for (auto const& model : models) {
    std::string edits;
    std::string listing;
    std::string last = "Initial";
    for (std::string const& step : model) {
      std::size_t const space = std::min(step.find(' '), step.size());
      std::string const name = "S" + std::to_string(&step - model.data());
      edits += "step " + name + " " + step.substr(0, space) + " after=" + last + step.substr(space) + "\n";
      listing += "show steps " + name + "\n";
      last = name;
    }
    Result const before = RunScript(edits + "save " + a + "\n" + listing);
    EXPECT_EQ(before.status, 0) << before.out;
    EXPECT_EQ(RunScript("open " + a + "\n" + listing).out, before.out);
    bool const sweeps = edits.ends_with(sweep + "\n");
    EXPECT_EQ(before.out.find("frequencyRange|upper=50,lower=1,nPoints=20,") != std::string::npos, sweeps) << before.out;
  }
}

TEST(EditModelTest, AlignsItsTablesByDefault) {
  std::string const edits = R"(step A StaticStep after=Initial initialInc=1 minInc=1 maxInc=1
create DisplacementBC "bölt 1" createStepName=A u1=1
history
)";
  EXPECT_EQ(RunScript(edits, "").out, R"(# boundaryConditions
name    Initial  A
bölt 1  NONE     CREATED
)");
}

TEST(EditModelTest, WritesAPageThatNeedsNothingElse) {
  std::string const path = scratch + "page.html";
  RunScript(abcd + "create DisplacementBC x createStepName=B u1=1.25 region=\"a <b> & c\"\nsuppress steps D\n",
            "--html " + path);
  std::string const page = FileText(path);
  for (char const* part :
       {"region = a &lt;b&gt; &amp; c", "<td class=\"status CREATED\">CREATED</td>", "<td class=\"SET\">1.25</td>",
        "<td class=\"PROPAGATED\">1.25</td>", "<li class=\"status NONE\">NONE</li>", "<s title=\"suppressed\">D</s>",
        "<td>Static, General</td>", "<b>given</b>"}) {
    EXPECT_NE(page.find(part), std::string::npos) << part;
  }
  for (char const* part : {"http:", "https:", "src=", "url(", "<b> &"}) {
    EXPECT_EQ(page.find(part), std::string::npos) << part;
  }

  RunScript(modal + "suppress steps E\n", "--html " + path);
  std::string const steps = FileText(path);
  for (char const* row : {"<s title=\"suppressed\">E</s>",
                          "<td>Initial step</td><td>Static, General</td><td>Static, General</td><td>Frequency</td>"
                          "<td>Modal dynamics</td><td>Static, General</td>",
                          "<td>no</td><td>no</td><td>no</td><td>no</td><td>no</td><td>yes</td>"}) {
    EXPECT_NE(steps.find(row), std::string::npos) << row;
  }
  EXPECT_EQ(steps.find("class=\"hint\""), std::string::npos);
  EXPECT_EQ(steps.find("class=\"legend\""), std::string::npos);
}

TEST(EditModelTest, TheBracketIsRefusedOnceAndOpensAsItWasSaved) {
  Result const result = RunCommand("cd " + scratch + " && " EDIT_MODEL " --format=tsv --keep-going " BRACKET_EDITS);
  EXPECT_EQ(result.status, 0) << result.out;
  std::size_t const refusal = result.out.find(": refused: ");
  EXPECT_NE(refusal, std::string::npos);
  EXPECT_EQ(result.out.find(": refused: ", refusal + 1), std::string::npos) << result.out;
  std::size_t const after = result.out.rfind("name|Initial|");
  std::string const history = result.out.substr(after);
  EXPECT_EQ(std::count(history.begin(), history.end(), '\n'), 21);
  EXPECT_EQ(result.out.substr(after - history.size(), history.size()), history);
}
