#include "core/PaletteSet.h"
#include "core/TlutData.h"
#include "paint/TextureCanvas.h"
#include "platform/fake/FakePlatform.h"

#include <cstdlib>

int main() {
    dyeworks::FakePlatform platform;
    dyeworks::PaletteSet palettes;
    dyeworks::TextureCanvas canvas;
    const bool made = palettes.newPalette(16, dyeworks::ColourType::Rgba, 1) && canvas.Create(8, 8, 1, 4);
    if (!made)
        return EXIT_FAILURE;
    canvas.FillEllipse(0, 0, 7, 7, 9);
    const bool saved = canvas.SaveTmf("c:\\disc.tmf") && palettes.lookup("")->save("c:\\disc.tlf", false);

    dyeworks::TextureCanvas read;
    return saved && read.LoadTmf("c:\\disc.tmf") && read.GetPixel(4, 4) == 9 ? EXIT_SUCCESS : EXIT_FAILURE;
}
