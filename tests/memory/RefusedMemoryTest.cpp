#include "../paint/ViewTestWindow.h"
#include "core/PaletteUndoRecord.h"
#include "paint/CanvasDepth.h"
#include "paint/CanvasTransform.h"
#include "paint/RenumberRecord.h"
#include "platform/posix/PosixStateFolder.h"
#include "recovery/RecoveryKeeper.h"

#include <gmock/gmock.h>

#include <atomic>
#include <cerrno>
#include <new>

namespace {

std::atomic<bool> armed = false;
std::atomic<int> left = 0; // Until the one that is refused, while armed.
std::atomic<bool> refused = false;

bool refuses() {
    if (!armed || --left != 0)
        return false;
    refused = true;
    errno = ENOMEM;
    return true;
}

} // namespace

extern "C" {

// NOLINTBEGIN(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
// NOLINTEND(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)

/// Also what `operator new` takes its memory from.
void* malloc(std::size_t size) {
    return refuses() ? nullptr : __libc_malloc(size);
}

void* calloc(std::size_t count, std::size_t size) {
    return refuses() ? nullptr : __libc_calloc(count, size);
}

void* realloc(void* block, std::size_t size) {
    return refuses() ? nullptr : __libc_realloc(block, size);
}

} // extern "C"

namespace dyeworks {
namespace {

/// An image with a history, attached to a palette, and what keeps them.
struct Workplace {
    Workplace() {
        EXPECT_TRUE(host.palettes.newPalette(256, ColourType::Rgba, 1));
        EXPECT_TRUE(image.canvas().Create(60, 40, 1, 8));
        window.view = &view;
        view.InitialUpdate();
        image.Attach();
        for (std::uint32_t value = 1; value < 4; ++value)
            fill(value);
        image.Undo();
    }
    ~Workplace() { window.view = nullptr; }

    void fill(std::uint32_t value) {
        image.Edit(&view, [=](TextureCanvas& canvas) {
            canvas.FillBox(static_cast<std::int32_t>(3 * value), 2, 50, 30, value);
        });
    }
    TextureLookupTable& palette() { return *host.palettes.palettes.begin()->second; }

    /// All that the user works on, but not how it can be undone.
    std::vector<std::uint32_t> contents() {
        const TextureCanvas& canvas = image.settledCanvas();
        std::vector<std::uint32_t> all{static_cast<std::uint32_t>(canvas.width()), canvas.bitsPerPixel(),
                                       static_cast<std::uint32_t>(image.paletteValue())};
        all.insert(all.end(), canvas.pixelRows().begin(), canvas.pixelRows().end());
        for (const auto& [key, open] : host.palettes.palettes) {
            all.push_back(static_cast<std::uint32_t>(open->table.count));
            for (std::int32_t i = 0; i < open->table.count; ++i)
                all.push_back(open->table.getEntry(i));
        }
        for (const FloatingPiece& piece : image.floatingPieces())
            all.push_back(static_cast<std::uint32_t>(piece.texels->width()));
        return all;
    }

    FakePlatform fake;
    FakeImageHost host;
    CDyeworksDoc image{host};
    FakeViewWindow window;
    CDyeworksView view{image, window};
    PosixStateFolder folder{fake.files.hostFolder() + "/runs"};
    RecoveryKeeper keeper{folder, RecoveryKeeper::Open{[this] { return std::vector<CDocument*>{&image}; },
                                                       [this] { return &host.palettes; }}};
};

struct Operation {
    const char* name;
    std::function<void(Workplace&)> carryOut;
    std::function<void(Workplace&)> prepare = [](Workplace& /*work*/) {};
};

void replace(Workplace& work,
             const std::function<std::unique_ptr<TextureCanvas>(const TextureCanvas&)>& make) {
    static_cast<void>(work.image.ReplaceImage(make));
}

std::unique_ptr<TextureCanvas> piece() {
    auto made = std::make_unique<TextureCanvas>();
    if (!made->Create(9, 7, 1, 8))
        return nullptr;
    made->FillBox(0, 0, 8, 6, 9);
    return made;
}

/// Every entry moves on by one, and the texels with them.
void renumber(Workplace& work) {
    TlutData after(work.palette().table);
    if (after.count != 256)
        return;
    ByteTable map{};
    for (std::int32_t i = 0; i < 256; ++i) {
        map[static_cast<std::size_t>(i)] = static_cast<std::uint8_t>(i + 1);
        after.setEntry((i + 1) % 256, work.palette().table.getEntry(i));
    }
    std::vector<JointStep::Change> changes;
    changes.push_back(
        {&work.palette().jointSide(), std::make_unique<PaletteUndoRecord>(&work.palette().table, &after)});
    changes.push_back(
        {&work.image.jointSide(), RenumberRecord::make(work.image.canvas(), work.image.texelCounts(), map)});
    if (changes[1].record != nullptr)
        static_cast<void>(JointStep::carryOut(std::move(changes)));
}

const std::vector<Operation> kOperations{
    {"box", [](Workplace& work) { work.fill(7); }},
    {"open edit",
     [](Workplace& work) {
         if (ImageEdit* const edit = work.image.BeginEdit(&work.view)) {
             edit->canvas().DrawLine(0, 0, 59, 39, 5);
             work.image.ShowEdit();
             edit->canvas().FillEllipse(0, 0, 59, 39, 6);
             work.image.CommitEdit();
         }
     }},
    {"flood fill",
     [](Workplace& work) {
         work.image.Edit(nullptr, [](TextureCanvas& canvas) { canvas.FloodFill(0, 0, 9); });
     }},
    {"flip",
     [](Workplace& work) {
         work.image.Edit(nullptr, [](TextureCanvas& canvas) { canvas.Flip(0, 0, 59, 20, 3); });
     }},
    {"replace a value",
     [](Workplace& work) {
         work.image.Edit(nullptr, [](TextureCanvas& canvas) {
             canvas.ReplaceColor({0, 0, 59, 39}, 0, 0, 3);
         });
     }},
    {"place",
     [](Workplace& work) {
         ImageViewer& viewer = work.view;
         static_cast<void>(viewer.CommitFloatingPiece(false));
     },
     [](Workplace& work) {
         ImageViewer& viewer = work.view;
         viewer.SetFloatingPiece(piece(), StringId{});
     }},
    {"turn", [](Workplace& work) { replace(work, [](const auto& old) { return turned(old, Turn::Left); }); }},
    {"resize",
     [](Workplace& work) {
         replace(work, [](const auto& old) { return resized(old, {70, 10}, {3, 4}, 2); });
     }},
    {"scale", [](Workplace& work) { replace(work, [](const auto& old) {
                                        return scaled(old, {30, 80});
                                    }); }},
    {"shift", [](Workplace& work) { replace(work, [](const auto& old) {
                                        return shifted(old, {3, 4});
                                    }); }},
    {"four bits",
     [](Workplace& work) {
         replace(work, [](const auto& old) { return inFourBits(old, IndexMap{1, 2, 3}, 0); });
     }},
    {"image from outside",
     [](Workplace& work) {
         TmfImage image;
         if (image.create(60, 40, 8) && image.setTexel(1, 1, 77))
             static_cast<void>(work.image.SetImage(image));
     }},
    {"undo", [](Workplace& work) { work.image.Undo(); }},
    {"redo", [](Workplace& work) { work.image.Redo(); }},
    {"palette edit",
     [](Workplace& work) {
         if (work.palette().beginEdit()) {
             work.palette().setEntry(3, 0x1234);
             work.palette().commitEdit();
         }
     }},
    {"new palette", [](Workplace& work) { work.host.palettes.newPalette(16, ColourType::Ia, 1); }},
    {"joint step", renumber},
    {"joint step taken back", [](Workplace& work) { work.image.Undo(); }, renumber},
    {"save", [](Workplace& work) { static_cast<void>(work.image.onSaveDocument("c:\\a.tmf")); }},
    {"save a bitmap", [](Workplace& work) { static_cast<void>(work.image.onSaveDocument("c:\\a.bmp")); }},
    {"recovery", [](Workplace& work) { work.keeper.keepNow(); }},
};

/// Whether the operation met the end of memory at its `number`th wish for some.
bool meetsRefusal(const Operation& operation, Workplace& work, int number) {
    refused = false;
    left = number;
    armed = true;
    try {
        operation.carryOut(work);
    } catch (const std::bad_alloc&) {
        // As the event loop does it: what was under way is given up.
        armed = false;
        work.image.jointSide().settle();
    }
    armed = false;
    return refused;
}

class RefusedMemory : public testing::TestWithParam<Operation> {};

TEST_P(RefusedMemory, ChangesAllOrNothingAndLeavesWhatIsOpenUsable) {
    const Operation& operation = GetParam();
    std::vector<std::uint32_t> after;
    {
        Workplace work;
        operation.prepare(work);
        operation.carryOut(work);
        after = work.contents();
    }
    bool met = true;
    for (int number = 1; met && !HasFailure(); ++number) {
        const testing::ScopedTrace where(__FILE__, __LINE__, std::to_string(number));
        Workplace work;
        operation.prepare(work);
        const std::vector<std::uint32_t> before = work.contents();
        met = meetsRefusal(operation, work, number);
        EXPECT_TRUE(met || number > 1) << "it asks for no memory";
        const std::vector<std::uint32_t> now = work.contents();
        EXPECT_TRUE(now == before || now == after);
        EXPECT_FALSE(work.image.isBeingEdited());
        // What was refused succeeds now, and what comes after it can be taken back.
        if (now == before && before != after) {
            operation.carryOut(work);
            EXPECT_EQ(work.contents(), after);
        }
        const std::vector<std::uint32_t> held = work.contents();
        work.image.Edit(nullptr, [](TextureCanvas& canvas) { canvas.FillBox(0, 0, 3, 3, 11); });
        EXPECT_NE(work.contents(), held);
        EXPECT_TRUE(work.image.Undo());
        EXPECT_EQ(work.contents(), held);
    }
}

INSTANTIATE_TEST_SUITE_P(Operations, RefusedMemory, testing::ValuesIn(kOperations), [](const auto& instance) {
    std::string name = instance.param.name;
    std::erase(name, ' ');
    return name;
});

} // namespace
} // namespace dyeworks
