#include "platform/fake/FakePlatform.h"

namespace dyeworks {

class FakePlatform::Face final : public Platform {
public:
    explicit Face(FakePlatform& fakes)
        : fakes_(fakes) {}

    Messages& messages() override { return fakes_.messages; }
    FileDialogs& fileDialogs() override { return fakes_.dialogs; }
    Files& files() override { return fakes_.files; }
    FileWatcher& fileWatcher() override { return fakes_.fileWatcher; }
    Profile& profile() override { return fakes_.profile; }
    Clipboard& clipboard() override { return fakes_.clipboard; }
    PictureReader& pictureReader() override { return fakes_.pictures; }
    Library& library() override { return fakes_.library; }
    VersionInfo& versionInfo() override { return fakes_.versionInfo; }
    Locale& locale() override { return fakes_.locale; }
    Shell& shell() override { return fakes_.shell; }
    StateFolder& stateFolder() override { return fakes_.stateFolder; }
    WaitCursor& waitCursor() override { return fakes_.waitCursor; }
    Texts& texts() override { return fakes_.texts; }

private:
    FakePlatform& fakes_;
};

FakePlatform::FakePlatform()
    : face_(std::make_unique<Face>(*this))
    , before_(installPlatform(face_.get())) {}

FakePlatform::~FakePlatform() {
    installPlatform(before_);
}

} // namespace dyeworks
