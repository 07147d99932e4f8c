#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <sstream>

#include "TVOOdbAttrEO.h"
#include "cls_AttributeTable.h"
#include "cls_Registrar.h"
#include "mdl_PropagatingAttribute.h"

// One suite over every registered class: what follows from a class's attribute table holds for each of them.

namespace {

class EveryClassTest : public ::testing::Test {
 protected:
  void SetUp() override { TVOOdbAttrEO_initialize(depth_); }
  void TearDown() override { TVOOdbAttrEO_finalize(depth_); }

 private:
  int depth_ = 0;
};

using Object = std::unique_ptr<cls_Persistent>;

/// Names that an enumeration takes, as its refusal of another one tells them.
std::vector<std::string> NamesOf(auto const& setText) {
  try {
    setText("no such name");
  } catch (std::exception const& refusal) {
    std::istringstream names(std::string(refusal.what()).substr(std::string(refusal.what()).find("Permissible: ") + 13));
    std::vector<std::string> found;
    for (std::string name; std::getline(names >> std::ws, name, ',');) {
      found.push_back(name);
    }
    return found;
  }
  return {};
}

/// Texts to try on a value; the first that it takes is its new value.
void SetSomething(auto const& setText, int seed) {
  std::string const number = std::to_string(seed);
  for (std::string const& text : {number + ".5", number, number + "," + number, std::string(seed % 2 ? "true" : "false")}) {
    try {
      if (setText(text)) {
        return;
      }
    } catch (std::exception const&) {
      std::vector<std::string> const names = NamesOf(setText);
      setText(names[static_cast<std::size_t>(seed) % names.size()]);
      return;
    }
  }
}

void Fill(cls_Persistent& object, int seed) {
  for (cls_Attribute const* attribute : object.DynAttributes().All()) {
    cls_Persistent* const embedded = attribute->Embedded(object);
    ++seed;
    if (auto* const propagating = dynamic_cast<mdl_PropAttrBase*>(embedded)) {
      SetSomething([&](std::string const& text) { return propagating->SetValueText(text); }, seed);
      propagating->ForceState(seed % 2 ? PROPAGATED : SET);
    } else if (embedded != nullptr) {
      Fill(*embedded, seed);
    } else {
      SetSomething([&](std::string const& text) { return attribute->SetText(object, text); }, seed);
    }
  }
}

std::string Snapshot(cls_Persistent const& object) {
  std::string text;
  for (cls_Attribute const* attribute : object.DynAttributes().All()) {
    cls_Persistent const* const embedded = attribute->Embedded(object);
    text += std::string(attribute->declared.field.name.View()) + "=";
    text += embedded != nullptr ? "{" + Snapshot(*embedded) + "}" : attribute->Text(object);
    text += ";";
  }
  return text;
}

void CollectUids(cls_Persistent const& object, std::multiset<std::uint64_t>& uids) {
  uids.insert(object.Uid().Value());
  for (cls_Attribute const* attribute : object.DynAttributes().All()) {
    cls_Persistent const* const embedded = attribute->Embedded(object);
    if (embedded != nullptr && attribute->HasIdentity()) {
      CollectUids(*embedded, uids);
    }
  }
}

template <class Check>
void ForEveryClass(Check check) {
  for (auto const& entry : cls_ClassRegistrar::Present().All()) {
    SCOPED_TRACE(entry.second->Name().CStr());
    if (Object const object{entry.second->New()}) {
      check(*entry.second, *object);
    }
  }
}

std::string Layout(cls_ClassMetadata const& metadata) {
  std::ostringstream line;
  line << metadata.Name().CStr() << " " << metadata.Version();
  for (cls_DeclaredAttribute const& attribute : metadata.Declared()) {
    line << " | " << attribute.field.ordinal << " " << attribute.field.name.CStr() << " "
         << static_cast<int>(attribute.type) << " " << std::hex << attribute.typeId << std::dec << " "
         << static_cast<int>(attribute.collection);
  }
  return line.str();
}

}  // namespace

TEST_F(EveryClassTest, ReadsBackWhatItWroteIntoADifferentlyFilledObject) {
  ForEveryClass([](cls_ClassMetadata const& metadata, cls_Persistent& written) {
    Fill(written, 3);
    Object const read(metadata.New());
    Fill(*read, 8);
    cls_Database database;
    cls_WriteSession writing(database);
    cls_WriteVisitor writer(writing);
    written.DBWrite(writer);
    database.Complete();
    cls_ReadSession reading(database);
    cls_ReadLevels(*read, cls_ReadVisitor(reading));
    EXPECT_EQ(Snapshot(*read), Snapshot(written));
    EXPECT_TRUE(cls_EqualValues(*read, written));
    EXPECT_EQ(read->Uid(), written.Uid());
  });
}

TEST_F(EveryClassTest, GivesAllIdentitiesAnewAndCopiesDeeply) {
  ForEveryClass([](cls_ClassMetadata const& metadata, cls_Persistent& object) {
    Fill(object, 5);
    std::string const before = Snapshot(object);
    Object const copy(static_cast<cls_Persistent*>(DDB_DeepCopyPtr(&object, metadata.TypeId())));
    std::multiset<std::uint64_t> kept;
    std::multiset<std::uint64_t> fresh;
    CollectUids(object, kept);
    EXPECT_TRUE(cls_EqualValues(object, *copy));
    copy->NewUid();
    Fill(*copy, 10);
    EXPECT_EQ(Snapshot(object), before);
    CollectUids(*copy, fresh);
    for (std::uint64_t const uid : fresh) {
      EXPECT_EQ(kept.count(uid), 0u);
      EXPECT_EQ(fresh.count(uid), 1u);
    }
  });
}

TEST_F(EveryClassTest, KeepsTheLayoutOfItsVersion) {
  std::ostringstream present;
  for (auto const& entry : cls_ClassRegistrar::Present().All()) {
    present << Layout(*entry.second) << "\n";
  }
  std::ifstream file(TVO_LAYOUTS);
  std::ostringstream golden;
  golden << file.rdbuf();
  // A changed line means a changed layout: it needs a new version of the class, and then its line here.
  EXPECT_EQ(present.str(), golden.str());
}
