#include "Program.h"

#include "core/TlfFormat.h"
#include "core/TmfFormat.h"

#include <QApplication>
#include <QTimer>

namespace dyeworks {

namespace {

std::string textOf(std::span<const std::byte> bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

} // namespace

Texels texels(int width, int height, const std::function<unsigned(int x, int y)>& valueAt) {
    Texels image(static_cast<std::size_t>(height), std::vector<unsigned>(static_cast<std::size_t>(width)));
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            image[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] = valueAt(x, y);
    }
    return image;
}

Texels pattern(int width, int height) {
    return texels(width, height, [](int x, int y) { return static_cast<unsigned>(x * 7 + y * 13) & 255U; });
}

std::string imageFile(const Texels& image, int bits) {
    TmfImage record;
    record.create(static_cast<int>(image.front().size()), static_cast<int>(image.size()), bits);
    for (int y = 0; y < record.height; ++y) {
        for (int x = 0; x < record.width; ++x)
            record.setTexel(x, y, image[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)]);
    }
    const TmfFile file = layOutTmf(record).value();
    return textOf(file.header) + textOf(file.body);
}

std::string paletteFile(int count, const std::function<unsigned(int entry)>& entryAt) {
    TlutData table;
    table.create(count, ColourType::Rgba);
    for (int i = 0; i < count; ++i)
        table.setEntry(i, static_cast<std::uint16_t>(entryAt(i)));
    return textOf(serialiseTlf(table).value().bytes());
}

void defineControls(FakePlatform& fake) {
    for (const char* control : {"SwatchGrid.ocx", "FolderPick.ocx", "RampSlider.ocx"})
        fake.library.defineFile(control, std::string(DYEWORKS_CONTROL_FOLDER "/") + control);
}

void leaveOutStartPage(FakePlatform& fake) {
    fake.profile.sections["Start Page"]["Shown"] = "0";
}

void putImages(FakePlatform& fake, std::initializer_list<const char*> paths) {
    for (const char* path : paths)
        fake.files.putFile(path, imageFile(texels(4, 4, [](int, int) { return 1U; }), 4));
}

std::vector<std::string> texts(const FakePlatform& fake) {
    std::vector<std::string> result;
    for (const Message& message : fake.messages.shown)
        result.push_back(message.text);
    return result;
}

QString onHost(FakePlatform& fake, const std::string& path) {
    return QString::fromStdString(fake.files.hostPath(path));
}

void withNextDialog(std::function<void(QDialog&)> use) {
    QTimer::singleShot(0, qApp, [use = std::move(use)] {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        use(*dialog);
    });
}

Program::Program(const char* missingControl) {
    defineControls(fake_);
    leaveOutStartPage(fake_);
    fake_.library.forget(missingControl);
    CommandLine commandLine;
    commandLine.noSplash = true;
    if (!app_.InitInstance(commandLine))
        ADD_FAILURE() << "the program does not start: " << fake_.messages.lastText();
}

void Program::openAttached(const Texels& image, int bits, int paletteEntries) {
    fake_.files.putFile("c:\\tex\\pic.tmf", imageFile(image, bits));
    // Every entry has a colour of its own.
    fake_.files.putFile("c:\\tex\\pic.tlf", paletteFile(paletteEntries, [](int i) {
                            return static_cast<unsigned>(i * 193 + 7) & 0xFFFFU;
                        }));
    ASSERT_TRUE(app_.OpenFiles({"c:\\tex\\pic.tlf", "c:\\tex\\pic.tmf"}, true));
    ASSERT_TRUE(this->image().IsAttached());
}

void Program::openBlank() {
    openAttached(texels(8, 8, [](int, int) { return 0U; }), 8, 256);
}

void Program::drawPixel(QPoint texel, int entry) {
    ASSERT_TRUE(run(ID_TOOL_PIXEL));
    app_.imageHost().selectPaletteBarCell(entry);
    drag({texel});
}

void Program::changePalette() {
    TextureLookupTable& palette = *app_.paletteSet()->lookup("");
    palette.beginEdit();
    palette.setEntry(3, 0x1234);
    palette.commitEdit();
}

CTPFDocument& Program::openProject(const std::vector<std::string>& pictures) {
    std::string file = "PICT_NUM = " + std::to_string(pictures.size()) + "\n";
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        const std::string& name = pictures[i];
        file.append("PICT.").append(std::to_string(i)).append(" = ").append(name);
        file.append("," + name + ".tmf," + name + ".tlf,2\n");
    }
    fake_.files.putFile("c:\\proj\\sea.tpf", file);
    EXPECT_TRUE(app_.OpenDocumentFile("c:\\proj\\sea.tpf"));
    return dynamic_cast<CTPFDocument&>(*app_.projectDocument());
}

Texels Program::canvas() {
    const TextureCanvas& shown = image().canvas();
    return texels(shown.width(), shown.height(), [&](int x, int y) { return shown.GetPixel(x, y); });
}

QPoint Program::at(int x, int y) {
    const int zoom = view().view().zoom();
    return QPoint(x * zoom + zoom / 2, y * zoom + zoom / 2) -
           static_cast<const ScrollView&>(view()).scrollPosition();
}

void Program::moveMouse(QPoint place, Qt::MouseButtons held, Qt::KeyboardModifiers modifiers) {
    // QTest::mouseMove reports no button.
    QMouseEvent move(QEvent::MouseMove, place, view().viewport()->mapToGlobal(place), Qt::NoButton, held,
                     modifiers);
    QCoreApplication::sendEvent(view().viewport(), &move);
}

void Program::drag(const std::vector<QPoint>& texelPath, Qt::KeyboardModifiers modifiers) {
    QWidget* viewport = view().viewport();
    const QPoint first = texelPath.front();
    const QPoint last = texelPath.back();
    QTest::mousePress(viewport, Qt::LeftButton, modifiers, at(first.x(), first.y()));
    for (const QPoint& texel : texelPath)
        moveMouse(at(texel.x(), texel.y()), Qt::LeftButton, modifiers);
    QTest::mouseRelease(viewport, Qt::LeftButton, modifiers, at(last.x(), last.y()));
}

} // namespace dyeworks
