#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <limits>
#include <new>
#include <random>

#include "../cls/SampleClasses.h"
#include "dbc_ModelFile.h"
#include "dbc_SystemCalls.h"

namespace {
std::size_t largestAllocation = 0;
}

// Not inlined, or the compiler sees only one half of a pair and warns.
[[gnu::noinline]] void* operator new(std::size_t size) {
  largestAllocation = std::max(largestAllocation, size);
  if (void* const block = std::malloc(size)) {
    return block;
  }
  throw std::bad_alloc();
}
[[gnu::noinline]] void* operator new(std::size_t size, std::nothrow_t const&) noexcept { return std::malloc(size); }
[[gnu::noinline]] void* operator new(std::size_t size, std::align_val_t alignment) {
  largestAllocation = std::max(largestAllocation, size);
  auto const unit = static_cast<std::size_t>(alignment);
  if (void* const block = std::aligned_alloc(unit, (size + unit - 1) / unit * unit)) {
    return block;
  }
  throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* block, std::align_val_t) noexcept { std::free(block); }
[[gnu::noinline]] void operator delete(void* block) noexcept { std::free(block); }
[[gnu::noinline]] void operator delete(void* block, std::size_t) noexcept { std::free(block); }

namespace {

using Bytes = std::vector<std::uint8_t>;

/// What the replaced system calls do: the call of this number fails, or the process dies before or after it.
struct Fault {
  enum class Kind { none, fail, dieBefore, dieAfter } kind = Kind::none;
  int at = 0;
  int calls = 0;
  std::string log;
} fault;

template <class Call>
auto Faulty(char const* name, Call call) -> decltype(call()) {
  bool const here = fault.calls++ == fault.at;
  fault.log += name;
  fault.log += ' ';
  if (here && fault.kind == Fault::Kind::fail) {
    errno = ENOSPC;
    return -1;
  }
  if (here && fault.kind == Fault::Kind::dieBefore) {
    ::_exit(0);
  }
  auto const result = call();
  if (here && fault.kind == Fault::Kind::dieAfter) {
    ::_exit(0);
  }
  return result;
}

constexpr dbc_SystemCalls faultyCalls = {
    [](char const* path, int flags, mode_t mode) { return Faulty("open", [=] { return ::open(path, flags, mode); }); },
    // Takes a part only, so that there are several writes to fail between.
    [](int file, void const* bytes, std::size_t count) {
      return Faulty("write", [=] { return ::write(file, bytes, std::min<std::size_t>(count, 700)); });
    },
    [](int file) { return Faulty("fsync", [=] { return ::fsync(file); }); },
    [](int file) { return Faulty("close", [=] { return ::close(file); }); },
    [](char const* from, char const* to) { return Faulty("rename", [=] { return ::rename(from, to); }); },
    [](char const* path) { return Faulty("unlink", [=] { return ::unlink(path); }); },
};

class ModelFileTest : public testing::Test {
 protected:
  ModelFileTest() {
    std::filesystem::create_directory(folder_);
    old_.other = smp_ShapeHolder();
  }
  ~ModelFileTest() override { std::filesystem::remove_all(folder_); }

  static std::string Refusal(Bytes const& file) {
    return smp_Refusal([&] { dbc_DecodeObject(file, "x.db"); });
  }
  static std::vector<dbc_SectionContent> Contents(Bytes const& file) {
    std::vector<dbc_SectionContent> contents;
    for (dbc_Section const& section : dbc_ListSections(file, "x")) {
      auto const first = file.begin() + static_cast<std::ptrdiff_t>(section.offset);
      contents.push_back({section.kind, Bytes(first, first + static_cast<std::ptrdiff_t>(section.length))});
    }
    return contents;
  }
  /// Asserts that damage is refused in the form that all such refusals have.
  static void ExpectRefused(Bytes const& file, std::string const& what) {
    std::string const text = Refusal(file);
    EXPECT_TRUE(text.starts_with("x.db: section ") && text.find(" at offset ") != std::string::npos) << what << text;
  }
  std::size_t Files() const {
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(folder_), {}));
  }

  smp_Registration registration_;
  std::string const folder_ = testing::TempDir() + "model_file_" + std::to_string(::getpid());
  cow_String const path_ = folder_ + "/model.db";
  smp_Box old_ = smp_FilledBox(1);
  smp_Box const new_ = smp_FilledBox(2);
};

/// Tables of one class whose columns are given: integers and doubles of random character.
cls_Database RandomTables(std::mt19937_64& random, std::uint32_t rows) {
  cls_Database database;
  cls_Table& table = smp_Mark::Attributes().AddTo(database);
  table.AddColumns({{9, "number"}, cls_AttributeType::Int});
  std::uint64_t uid = random();
  std::uint32_t word = static_cast<std::uint32_t>(random());
  double value = 0.0;
  auto const character = random() % 5;
  for (std::uint32_t row = 0; row < rows; ++row) {
    bool const change = character == 0 || random() % (std::uint64_t{1} << (4 * character)) == 0;
    uid += character == 4 ? 3 : random() % (character + 2);
    if (change) {
      word = random() % 3 == 0 ? cls_NoRow : static_cast<std::uint32_t>(random() >> (random() % 64));
      value = random() % 2 == 0 ? std::bit_cast<double>(random()) : -0.0;
    }
    table.NewRow(uid);
    table.columns[0].Set(row, value);
    table.columns[1].Set(row, 0u);
    table.columns[2].Set(row, character % 2 == 0 ? word : word++);
  }
  database.Complete();
  return database;
}

}  // namespace

TEST_F(ModelFileTest, OpensWhatItSaved) {
  dbc_SaveObject(old_, path_);
  ::chmod(path_.CStr(), 0640);
  std::string const link = folder_ + "/link.db";
  std::filesystem::create_symlink("model.db", link);
  dbc_SaveObject(new_, link.c_str());

  auto const box = dbc_Open<smp_Box>(path_);
  EXPECT_TRUE(cls_EqualValues(*box, new_));
  EXPECT_EQ(smp_Identities(*box), smp_Identities(new_));
  EXPECT_TRUE(box->inner.Identical(box->other));
  EXPECT_TRUE(std::filesystem::is_symlink(link));
  EXPECT_EQ(static_cast<unsigned>(std::filesystem::status(path_.CStr()).permissions()), 0640u);
  EXPECT_EQ(Files(), 2u);

  int revision = 0;
  cls_Database const tables = dbc_OpenDatabase(path_, &revision);
  EXPECT_EQ(revision, dbc_SchemaRevision);
  EXPECT_EQ(tables.FindTable(smp_Box::TypeId())->Rows(), 3u);
  EXPECT_EQ(dbc_EncodeDatabase(tables, revision), dbc_EncodeObject(new_));

  std::string const file = path_.CStr();
  EXPECT_EQ(smp_Refusal([&] { dbc_Open<smp_Mark>(path_); }), file + ": holds a smp_Box, not a smp_Mark");
  EXPECT_EQ(smp_Refusal([&] { dbc_OpenObject("/nowhere/a.db"); }),
            "/nowhere/a.db: cannot be opened: No such file or directory");
  EXPECT_EQ(smp_Refusal([&] { dbc_OpenDatabase(folder_.c_str()); }), folder_ + ": cannot be opened: Is a directory");
  EXPECT_EQ(smp_Refusal([&] { dbc_SaveObject(old_, "/nowhere/a.db"); }),
            "/nowhere/a.db: cannot be saved, open failed: No such file or directory");
}

TEST_F(ModelFileTest, KeepsEveryCellInWhateverFormItIsStored) {
  std::mt19937_64 random(7);
  for (int round = 0; round < 60; ++round) {
    std::uint32_t const rows[] = {0, 1, 2, 1023, 1024, 1025, 5000};
    cls_Database const written = RandomTables(random, rows[round % 7]);
    cls_Database const read = dbc_DecodeDatabase(dbc_EncodeDatabase(written, 203), "x");
    cls_Table const& a = *written.tables[0];
    cls_Table const& b = *read.tables[0];
    ASSERT_EQ(a.uids, b.uids);
    ASSERT_EQ(a.declared, b.declared);
    ASSERT_EQ(a.columns[2].words, b.columns[2].words);
    for (std::size_t row = 0; row < a.uids.size(); ++row) {
      ASSERT_EQ(std::bit_cast<std::uint64_t>(a.columns[0].doubles[row]),
                std::bit_cast<std::uint64_t>(b.columns[0].doubles[row]));
    }
  }
}

TEST_F(ModelFileTest, RefusesAFileWithAnyByteAlteredOrCut) {
  Bytes const file = dbc_EncodeObject(new_);
  for (std::size_t at = 0; at < file.size(); ++at) {
    for (int const flip : {0x01, 0x80, 0xff}) {
      Bytes damaged = file;
      damaged[at] = static_cast<std::uint8_t>(damaged[at] ^ flip);
      ExpectRefused(damaged, "byte " + std::to_string(at) + ": ");
    }
    Bytes const cut(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(at));
    ExpectRefused(cut, "cut at " + std::to_string(at) + ": ");
  }
  Bytes longer = file;
  longer.push_back(0);
  ExpectRefused(longer, "longer: ");
}

// Damage that the checksums do not show, as somebody would make it who knows the form of the file.
TEST_F(ModelFileTest, SurvivesWrongContentUnderRightChecksums) {
  auto const contents = Contents(dbc_EncodeObject(new_));
  for (std::size_t section = 0; section < contents.size(); ++section) {
    for (std::size_t at = 0; at < contents[section].bytes.size(); ++at) {
      for (int const value : {0x00, 0x01, 0x02, 0x7f, 0x80, 0xff, contents[section].bytes[at] ^ 0x01}) {
        auto crafted = contents;
        crafted[section].bytes[at] = static_cast<std::uint8_t>(value);
        Bytes const file = dbc_AssembleFile(dbc_SchemaRevision, crafted);
        largestAllocation = 0;
        try {
          dbc_DecodeObject(file, "x.db");
        } catch (TVOBasException const&) {
          // Any refusal will do; what is opened must be sound.
        }
        EXPECT_LE(largestAllocation, 4096 * file.size());
      }
    }
  }
}

TEST_F(ModelFileTest, RefusesContentThatContradictsItself) {
  auto const refusal = [](cls_Database const& database) {
    return smp_Refusal([&] { dbc_EncodeDatabase(database, 203); });
  };
  auto const column = [](cls_Database& database, char const* field) -> mem_Array<std::uint32_t>& {
    cls_Table& table = *database.FindTable(smp_Box::TypeId());
    return table.columns[static_cast<std::size_t>(table.FindColumn(field))].words;
  };
  // A file must not make one list or one base part be read many times; nor is such a file written.
  cls_Database lists = smp_Write(new_);
  column(lists, "names#OID")[1] = column(lists, "names#OID")[0];
  EXPECT_EQ(refusal(lists), "smp_Box, row 1: refers to a collection that is not there or belongs to another");
  cls_Database bases = smp_Write(new_);
  column(bases, cls_BaseClassField)[1] = column(bases, cls_BaseClassField)[0];
  EXPECT_EQ(refusal(bases), "smp_Box, row 1: refers to a row of its base class that is not there or belongs to another");
  cls_Database layout = smp_Write(new_);
  layout.FindTable(smp_Box::TypeId())->declared.pop_back();
  EXPECT_EQ(refusal(layout), "smp_Box: the columns are not those of the declared attributes");
  EXPECT_ANY_THROW(dbc_EncodeDatabase(smp_Write(new_), dbc_SchemaRevision + 1));

  // Rows that the bytes cannot hold: the table of smp_Link, which has one column, with another number of rows.
  auto contents = Contents(dbc_EncodeObject(smp_Chain(3)));
  Bytes& table = contents[3].bytes;
  auto const rows = std::find(table.begin(), table.end(), 3);
  table.insert(table.erase(rows), {0xfe, 0xff, 0xff, 0xff, 0x0f});
  largestAllocation = 0;
  EXPECT_TRUE(Refusal(dbc_AssembleFile(203, contents)).starts_with("x.db: section table smp_Link at offset "));
  EXPECT_LT(largestAllocation, 100000u);

  // A reference that does not hold comes out with the section it stands in.
  contents = Contents(dbc_EncodeObject(smp_Chain(3)));
  contents.back().bytes.back() = 9;
  EXPECT_TRUE(Refusal(dbc_AssembleFile(203, contents)).starts_with("x.db: section root at offset "));
  std::swap(contents[1], contents[2]);
  ExpectRefused(dbc_AssembleFile(203, contents), "order: ");
  contents.resize(2);
  ExpectRefused(dbc_AssembleFile(203, contents), "sections missing: ");
}

TEST_F(ModelFileTest, NamesWhatIsNewerOrUnknown) {
  Bytes const file = dbc_EncodeObject(new_);
  auto const contents = Contents(file);
  EXPECT_EQ(Refusal(dbc_AssembleFile(dbc_SchemaRevision, contents, dbc_FormatNumber + 1)),
            "x.db: section header at offset 8: was written by a newer release: format 2, this release reads 1");
  EXPECT_EQ(Refusal(dbc_AssembleFile(dbc_SchemaRevision + 1, contents)),
            "x.db: section header at offset 12: was written by a newer release: schema revision 2614, "
            "this release reads 2613");

  cls_Database older = smp_Write(new_);
  older.FindTable(smp_Shape::TypeId())->version = 831;
  Bytes const olderFile = dbc_EncodeDatabase(older, 1000);
  EXPECT_EQ(Refusal(olderFile),
            "x.db: section classes at offset 64: class smp_Shape has version 831, this release reads version 1327");
  EXPECT_NO_THROW(dbc_DecodeDatabase(olderFile, "x.db"));
  cls_ClassRegistrar::Present().DeleteClass("smp_Mark", smp_Mark::TypeId());
  EXPECT_EQ(Refusal(file), "x.db: section classes at offset 64: class smp_Mark has version 203 and identifier 133169155, "
                           "which this release does not know");
}

TEST_F(ModelFileTest, LeavesTheOldModelOrTheNewOneWholeWhateverFails) {
  dbc_SaveObject(old_, path_);
  dbc_SystemCalls const real = dbc_SetSystemCalls(faultyCalls);
  fault = {};
  fault.at = -1;
  dbc_SaveObject(old_, path_);
  EXPECT_TRUE(fault.log.starts_with("open write write ")) << fault.log;
  EXPECT_TRUE(fault.log.ends_with("write fsync close rename open fsync close ")) << fault.log;
  int const calls = fault.calls;

  for (int at = 0; at < calls - 1; ++at) {
    fault = {Fault::Kind::fail, at, 0, {}};
    std::string const text = smp_Refusal([&] { dbc_SaveObject(new_, path_); });
    bool const renamed = at >= calls - 3;
    std::string const what = renamed ? ": was saved, but " : ": cannot be saved, ";
    EXPECT_TRUE(text.starts_with(path_.CStr() + what)) << text;
    EXPECT_TRUE(text.ends_with("No space left on device")) << text;
    EXPECT_TRUE(cls_EqualValues(*dbc_OpenObject(path_), renamed ? new_ : old_)) << at;
    EXPECT_EQ(Files(), 1u) << at;
  }
  for (auto const kind : {Fault::Kind::dieBefore, Fault::Kind::dieAfter}) {
    for (int at = 0; at < calls; ++at) {
      fault = {};
      fault.at = -1;
      dbc_SaveObject(old_, path_);
      pid_t const child = ::fork();
      if (child == 0) {
        fault = {kind, at, 0, {}};
        dbc_SaveObject(new_, path_);
        ::_exit(1);
      }
      int status = -1;
      ::waitpid(child, &status, 0);
      EXPECT_EQ(status, 0) << at;
      bool const renamed = at >= calls - (kind == Fault::Kind::dieAfter ? 4 : 3);
      EXPECT_TRUE(cls_EqualValues(*dbc_OpenObject(path_), renamed ? new_ : old_)) << at;
    }
  }
  dbc_SetSystemCalls(real);
}
