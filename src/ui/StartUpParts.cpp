#include "ui/StartUpParts.h"

#include "core/PaletteSet.h"
#include "ui/CMainFrame.h"

#include <QApplication>

#include <new>

namespace dyeworks {

namespace {

template <typename Make>
auto orNull(Make make) -> decltype(make()) {
    try {
        return make();
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

} // namespace

StartUpParts::StartUpParts()
    : startObjectServices([] { return qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr; })
    , makeMainFrame(
          [](MainFrameHost& host) { return orNull([&] { return std::make_unique<CMainFrame>(host); }); })
    , makePaletteSet([] { return orNull([] { return std::make_unique<PaletteSet>(); }); }) {}

} // namespace dyeworks
