#include "interchange/TextureSource.h"

#include "interchange/RawTexture.h"

#include <algorithm>
#include <cstdio>
#include <new>
#include <stdexcept>
#include <utility>

namespace dyeworks {

namespace {

constexpr std::size_t kBytesInLine = 16;
constexpr std::size_t kEntriesInLine = 8;

std::string upper(std::string text) {
    std::ranges::transform(text, text.begin(), [](char c) {
        return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    });
    return text;
}

/// What the source is made of, in the order in which it is read.
class SourceText {
public:
    SourceText(const TmfImage& image, const TlutData* palette, ChosenEntries range, std::int32_t firstEntry,
               const SourceOptions& options, std::vector<std::byte> texels)
        : image_(image)
        , palette_(palette)
        , range_(range)
        , firstOfImage_(image.bits == 4 ? std::max(firstEntry - range.first, std::int32_t{0}) : 0)
        , alignment_(std::max(options.alignment, std::int32_t{1}))
        , name_(identifierOf(options.name))
        , macro_(upper(name_))
        , texels_(std::move(texels)) {}

    [[nodiscard]] std::string headerAlone() const {
        return guarded(comment() + kInclude + alignmentMacro() + sizes() + definitions("static const"));
    }

    [[nodiscard]] std::string header() const {
        std::string body = comment() + kInclude + alignmentMacro() + sizes();
        body += "\n#ifdef __cplusplus\nextern \"C\" {\n#endif\n";
        if (!texels_.empty())
            body += '\n' + array("extern const", "uint8_t", "texels") + ";\n";
        if (range_.count > 0)
            body += '\n' + array("extern const", "uint16_t", "palette") + ";\n";
        return guarded(body + "\n#ifdef __cplusplus\n}\n#endif\n");
    }

    [[nodiscard]] std::string source(std::string_view headerName) const {
        return comment() + "#include \"" + std::string(headerName) + "\"\n" + definitions("const");
    }

private:
    static constexpr const char* kInclude = "#include <stdint.h>\n";

    [[nodiscard]] std::string guarded(const std::string& body) const {
        const std::string guard = macro_ + "_TEXTURE_H";
        return "#ifndef " + guard + "\n#define " + guard + "\n\n" + body + "\n#endif\n";
    }

    [[nodiscard]] std::string comment() const {
        std::string text = "/* " + name_;
        if (!texels_.empty()) {
            text += "\n * texels: " + std::to_string(image_.width) + " x " + std::to_string(image_.height) +
                    " of " + std::to_string(image_.bits) + " bits, rows from the top";
            if (image_.bits == 4)
                text += ", two to a byte, the first in its high half";
        }
        if (range_.count > 0) {
            text += "\n * palette: " + std::to_string(range_.count) + " entries of 16 bits, ";
            text += palette_->colourType == ColourType::Ia ? "intensity 8, alpha 8"
                                                           : "red 5, green 5, blue 5, alpha 1";
            text += " from the high bit down";
        }
        return text + "\n */\n";
    }

    [[nodiscard]] std::string alignmentMacro() const {
        if (alignment_ == 1)
            return {};
        const std::string define = "#define " + macro_ + "_ALIGNED";
        const std::string bytes = '(' + std::to_string(alignment_) + ")\n";
        return "\n#if defined(__cplusplus) && __cplusplus >= 201103L\n" + define + " alignas" + bytes +
               "#elif defined(__STDC_VERSION__) && __STDC_VERSION__ >= 201112L\n" + define + " _Alignas" +
               bytes + "#elif defined(__GNUC__)\n" + define + " __attribute__((aligned(" +
               std::to_string(alignment_) + ")))\n#else\n" + define + "\n#endif\n";
    }

    [[nodiscard]] std::string sizes() const {
        std::string text = "\n";
        const auto define = [&](const char* what, std::int64_t value) {
            text += "#define " + macro_ + what + ' ' + std::to_string(value) + '\n';
        };
        if (!texels_.empty()) {
            define("_WIDTH", image_.width);
            define("_HEIGHT", image_.height);
            define("_BITS", image_.bits);
            define("_ROW_BYTES", rawRowBytes(image_));
            define("_TEXEL_BYTES", static_cast<std::int64_t>(texels_.size()));
        }
        if (range_.count > 0) {
            define("_PALETTE_COUNT", range_.count);
            // Where in the array texel 0 has its colour.
            define("_PALETTE_FIRST", firstOfImage_);
        }
        return text;
    }

    /// "const uint8_t sky_texels[512]", aligned.
    [[nodiscard]] std::string array(const char* storage, const char* type, const char* what) const {
        const bool isTexels = std::string_view(what) == "texels";
        return (alignment_ == 1 ? std::string() : macro_ + "_ALIGNED ") + storage + ' ' + type + ' ' + name_ +
               '_' + what + '[' + macro_ + (isTexels ? "_TEXEL_BYTES]" : "_PALETTE_COUNT]");
    }

    [[nodiscard]] std::string definitions(const char* storage) const {
        std::string text;
        if (!texels_.empty()) {
            text += '\n' + array(storage, "uint8_t", "texels") + " = {\n";
            appendTexels(text);
            text += "};\n";
        }
        if (range_.count > 0) {
            text += '\n' + array(storage, "uint16_t", "palette") + " = {\n";
            appendEntries(text);
            text += "};\n";
        }
        return text;
    }

    void appendTexels(std::string& text) const {
        const auto row = static_cast<std::size_t>(rawRowBytes(image_));
        text.reserve(text.size() + texels_.size() * 6 + texels_.size() / row * 8);
        for (std::size_t i = 0; i < texels_.size(); ++i) {
            const std::size_t inRow = i % row;
            char word[8];
            std::snprintf(word, sizeof word, "0x%02X,", std::to_integer<unsigned>(texels_[i]));
            text += inRow % kBytesInLine == 0 ? "    " : " ";
            text += word;
            if (inRow + 1 == row || inRow % kBytesInLine == kBytesInLine - 1)
                text += '\n';
        }
    }

    void appendEntries(std::string& text) const {
        for (std::int32_t i = 0; i < range_.count; ++i) {
            const std::size_t inLine = static_cast<std::size_t>(i) % kEntriesInLine;
            char word[16];
            std::snprintf(word, sizeof word, "0x%04X,",
                          static_cast<unsigned>(palette_->getEntry(range_.first + i)));
            text += inLine == 0 ? "    " : " ";
            text += word;
            if (i + 1 == range_.count || inLine == kEntriesInLine - 1)
                text += '\n';
        }
    }

    const TmfImage& image_;
    const TlutData* palette_;
    ChosenEntries range_;
    std::int32_t firstOfImage_;
    std::int32_t alignment_;
    std::string name_;
    std::string macro_;
    std::vector<std::byte> texels_;
};

/// What `write` makes of the source; a text of gigabytes may find no memory.
template <typename T, typename Write>
Result<T, InterchangeError> sourceOf(const TmfImage& image, const TlutData* palette, std::int32_t firstEntry,
                                     const SourceOptions& options, Write write) {
    std::vector<std::byte> texels;
    if (options.withTexels) {
        auto raw = rawTexels(image);
        if (!raw)
            return raw.error();
        texels = std::move(raw).value();
    }
    const ChosenEntries range = chosenEntries(image, palette, firstEntry, options);
    if (texels.empty() && range.count == 0)
        return InterchangeError{InterchangeError::Kind::NoColours, {}, 0, 0};
    try {
        return T(write(SourceText(image, palette, range, firstEntry, options, std::move(texels))));
    } catch (const std::bad_alloc&) {
    } catch (const std::length_error&) {
    }
    return InterchangeError{InterchangeError::Kind::NoMemory, {}, 0, 0};
}

} // namespace

Result<std::string, InterchangeError> headerWithData(const TmfImage& image, const TlutData* palette,
                                                     std::int32_t firstEntry, const SourceOptions& options) {
    return sourceOf<std::string>(image, palette, firstEntry, options,
                                 [](const SourceText& text) { return text.headerAlone(); });
}

Result<SourcePair, InterchangeError> headerAndSource(const TmfImage& image, const TlutData* palette,
                                                     std::int32_t firstEntry, const SourceOptions& options,
                                                     std::string_view headerName) {
    return sourceOf<SourcePair>(image, palette, firstEntry, options, [&](const SourceText& text) {
        return SourcePair{text.header(), text.source(headerName)};
    });
}

} // namespace dyeworks
