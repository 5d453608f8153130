#pragma once

#include "core/TextureLookupTable.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace dyeworks {

/// What the palette panel shows and how it answers to choices: the cell that is selected for drawing and, for
/// an image of 16 colours drawn with a palette of 256, the bank of 16 entries that it is shown through.
class PalettePanelState {
public:
    static constexpr std::int32_t kBankSize = 16;
    static constexpr std::int32_t kLastBank = 15;

    /// The active image, as long as it is attached to the palette that is shown.
    struct Image {
        std::int32_t bits = 0;
        std::int32_t paletteValue = 0; ///< First entry of the bank that the image keeps.
    };

    /// Takes up the palette, or null, and the active image. A cell beyond the palette becomes its last one, a
    /// cell below it the first; without a palette there is no cell (-1).
    void show(const TextureLookupTable* palette, const std::optional<Image>& image);

    /// Selects a cell without asking whether the palette has it; `show` puts that right.
    void selectCell(std::int32_t cell) { cell_ = cell; }
    /// The user chose a cell. True when this selects another bank.
    bool chooseCell(std::int32_t cell);
    /// The user chose a bank, 0 to 15 (other numbers are brought into that range): the cell moves to the same
    /// column of it. True when this selects another bank.
    bool chooseBank(std::int32_t bank);

    [[nodiscard]] std::int32_t cell() const noexcept { return cell_; }
    [[nodiscard]] std::int32_t columns() const noexcept { return columns_; }
    [[nodiscard]] bool inBankMode() const noexcept { return bankMode_; }
    [[nodiscard]] std::int32_t bank() const noexcept { return bank_; }
    /// Entry that the value 0 of a 4-bit image shows: 16 times the bank, or 0 outside bank mode.
    [[nodiscard]] std::int32_t firstEntry() const noexcept { return bankMode_ ? kBankSize * bank_ : 0; }

    /// The display colours of all entries, each 0xffRRGGBB.
    [[nodiscard]] static std::vector<std::uint32_t> colours(const TextureLookupTable& palette);
    /// "12  #7BDE  R15 G15 B15 A0"; for intensity palettes "12  #7BDE  I123 A222". Empty for an entry that
    /// the palette does not have.
    [[nodiscard]] static std::string describe(const TextureLookupTable& palette, std::int32_t entry);

private:
    std::int32_t cell_ = -1;
    std::int32_t columns_ = 0;
    bool bankMode_ = false;
    std::int32_t bank_ = 0;
};

} // namespace dyeworks
