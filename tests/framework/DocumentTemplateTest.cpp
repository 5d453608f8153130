#include "framework/DocumentTemplate.h"

#include "framework/CDocument.h"
#include "platform/fake/FakePlatform.h"

#include <gmock/gmock.h>

using namespace dyeworks;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A document whose file operations do as they are told.
class TestDocument : public CDocument {
public:
    using CDocument::CDocument;

    bool openSucceeds = true;
    bool changesWhenRead = false;
    bool newSucceeds = true;

    bool onNewDocument() override { return CDocument::onNewDocument() && newSucceeds; }
    bool onOpenDocument(const std::string& path) override {
        const bool opened = CDocument::onOpenDocument(path) && openSucceeds;
        setModified(changesWhenRead);
        return opened;
    }
    bool onSaveDocument(const std::string& /*path*/) override { return false; }
};

struct TestWindows : DocumentWindows {
    bool succeed = true;
    std::vector<std::string> opened;
    std::vector<CDocument*> activated;

    bool openWindow(CDocument& document) override {
        opened.push_back(document.title());
        return succeed;
    }
    void activate(CDocument& document) override { activated.push_back(&document); }
};

struct Templates : testing::Test {
    FakePlatform fake;
    TestWindows windows;
    bool nextSucceeds = true;
    bool nextChanges = false;
    DocumentTemplate textures{{"Texture", ".tmf"},
                              [this](DocumentTemplate& owner) {
                                  auto document = std::make_unique<TestDocument>(&owner);
                                  document->openSucceeds = document->newSucceeds = nextSucceeds;
                                  document->changesWhenRead = nextChanges;
                                  return document;
                              },
                              windows};
};

TEST_F(Templates, OpenDocumentIsFoundByAnySpellingOfItsPath) {
    std::vector<std::string> told;
    textures.setPathListener([&](const std::string& path) { told.push_back(path); });
    CDocument* sky = textures.openDocument("tex\\Sky.tmf");
    ASSERT_NE(sky, nullptr);
    EXPECT_THAT(windows.opened, ElementsAre("Sky.tmf"));
    EXPECT_THAT(told, ElementsAre("c:\\tex\\Sky.tmf"));
    for (const char* path :
         {"c:\\tex\\Sky.tmf", "C:\\TEX\\SKY.TMF", "tex/sky.tmf", "c:\\tex\\..\\tex\\.\\sky.tmf"})
        EXPECT_EQ(textures.findDocument(path), sky) << path;
    for (const char* path : {"c:\\sky.tmf", "Sky.tmf", "c:\\tex\\Sky.tm", ""})
        EXPECT_EQ(textures.findDocument(path), nullptr) << path;
    EXPECT_EQ(textures.openDocument("C:/tex/SKY.tmf"), sky);
    EXPECT_THAT(windows.activated, ElementsAre(sky));
    EXPECT_THAT(textures.documents(), ElementsAre(sky));
    EXPECT_FALSE(sky->isModified());
    nextChanges = true;
    EXPECT_TRUE(textures.openDocument("lake.tmf")->isModified()) << "what changed while it was read";
}

TEST_F(Templates, FileThatCannotBeReadOrShownLeavesNoDocument) {
    nextSucceeds = false;
    EXPECT_EQ(textures.openDocument("c:\\tex\\sky.tmf"), nullptr);
    EXPECT_THAT(windows.opened, IsEmpty());
    nextSucceeds = true;
    windows.succeed = false;
    EXPECT_EQ(textures.openDocument("c:\\tex\\sky.tmf"), nullptr);
    EXPECT_EQ(textures.newDocument(), nullptr);
    EXPECT_THAT(textures.documents(), IsEmpty());
}

} // namespace
