#pragma once

#include "FakePlugInHost.h"
#include "dyeworks/plugin.h"
#include "platform/fake/FakePlatform.h"
#include "plugin/ImagePlugInCalls.h"
#include "plugin/ProjectPlugInCalls.h"

#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <map>

namespace dyeworks {

using Word = std::uint32_t;
using Text = const char*;
using PictureIn = const PlugInPicture*;
using Lines = std::vector<std::string>;

constexpr Word kThrows = 99;
inline Lines calls;
inline std::map<char, Word> answers; ///< Of each plug-in; 0 where there is none.
/// What the importer does in its call.
inline std::function<void(PictureIn in, PlugInPicture* out)> import;

struct Noted {
    static std::string text(Word value) { return std::to_string(value); }
    static std::string text(Text value) { return value; }
    static std::string text(DwHandle handle) { return handle == nullptr ? "-" : static_cast<Text>(handle); }
    static std::string text(Word* effect) { return std::to_string(*effect += DW_DROP_MOVE); }
    static std::string text(char* buffer) { return *buffer == '\0' ? std::strcpy(buffer, "once") : "again"; }
    static std::string text(PictureIn p) { return std::to_string(p->paletteNumber) + text(p->reserved); }
};

/// An entry point of the plug-in `kName` that notes its arguments behind these two letters.
template <char kName, char kEntry, typename... Arguments>
void* entry() {
    return FakeLibrary::address(+[](Arguments... arguments) {
        calls.push_back({kName, kEntry});
        ((calls.back() += " " + Noted::text(arguments)), ...);
        return answers[kName] == kThrows ? throw kThrows : answers[kName];
    });
}

template <Word kAnswer>
void* always() {
    return FakeLibrary::address(+[] { return kAnswer == kThrows ? throw kThrows : kAnswer; });
}

/// All calls that a plug-in can answer.
template <char kName>
FakeLibrary::Symbols everything() {
    const auto onNew = +[]() -> DwHandle {
        static char letter[] = {kName, '\0'};
        return letter;
    };
    const auto imports = +[](PictureIn in, PlugInPicture* out) { return import(in, out), answers[kName]; };
    return {{"DWPI_import", FakeLibrary::address(imports)},
            {"DWPI_export", entry<kName, 'x', PictureIn>()},
            {"DWPI_preview2", entry<kName, '2', PictureIn, Word>()},
            {"DWPI_preview", entry<kName, '1', PictureIn>()},
            {"DWPI_TPF_onNew", FakeLibrary::address(onNew)},
            {"DWPI_TPF_onUpdate", entry<kName, 'u', DwHandle>()},
            {"DWPI_TPF_onUpdateNodes", entry<kName, 'n', DwHandle>()},
            {"DWPI_TPF_onDelete", entry<kName, 'd', DwHandle>()},
            {"DWPI_TPF_onCommand", entry<kName, 'c', DwHandle, Text, Word, Word>()},
            {"DWPI_TPF_toString", entry<kName, 's', DwHandle, Text, char*, Word>()},
            {"DWPI_TPF_isDroppable", entry<kName, '?', DwHandle, Text, Text, Word, Word*>()},
            {"DWPI_TPF_onDrop", entry<kName, '!', DwHandle, Text, Text, Text, Word>()},
            {"DWPI_TPF_export", entry<kName, 'e', DwHandle, Text>()}};
}

} // namespace dyeworks
