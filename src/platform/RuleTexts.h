#pragma once

#include "platform/TextRow.h"

namespace dyeworks {

/// Texts of rules.
inline constexpr TextRow kRuleTexts[] = {
    TextRow{StringId::RulesCaption, QT_TRANSLATE_NOOP("Text", "Rules of the Project")},
    TextRow{StringId::RulesForPictures,
            QT_TRANSLATE_NOOP("Text", "What the images of the project's pictures must keep to. Findings in "
                                      "the View menu lists what does not.")},
    TextRow{StringId::RulesForOthers,
            QT_TRANSLATE_NOOP("Text", "What images must keep to that are no pictures of the open project.")},
    TextRow{StringId::RuleLargestSize, QT_TRANSLATE_NOOP("Text", "&Largest size")},
    TextRow{StringId::RuleLargestSizeHint, QT_TRANSLATE_NOOP("Text", "Neither side of the image is longer.")},
    TextRow{StringId::RulePowersOfTwo, QT_TRANSLATE_NOOP("Text", "&Powers of two")},
    TextRow{StringId::RulePowersOfTwoHint,
            QT_TRANSLATE_NOOP("Text", "Width and height are each 1, 2, 4, 8, 16 and so on.")},
    TextRow{StringId::RuleTexelBytes, QT_TRANSLATE_NOOP("Text", "&Bytes of the texels")},
    TextRow{StringId::RuleTexelBytesHint,
            QT_TRANSLATE_NOOP("Text", "No more than these in the image's file, without its header.")},
    TextRow{StringId::RuleBytesWithColours, QT_TRANSLATE_NOOP("Text", "Bytes &with the colours")},
    TextRow{StringId::RuleBytesWithColoursHint,
            QT_TRANSLATE_NOOP(
                "Text",
                "The same and two bytes an entry: the 16 of the bank, or, at 8 bits, the whole palette.")},
    TextRow{StringId::RuleBlockColours, QT_TRANSLATE_NOOP("Text", "&Colours of a block")},
    TextRow{StringId::RuleBlockColoursHint,
            QT_TRANSLATE_NOOP("Text",
                              "No more different indexes in any block of that many texels by that many.")},
    TextRow{StringId::RuleFirstEntryTransparent, QT_TRANSLATE_NOOP("Text", "First entry &transparent")},
    TextRow{StringId::RuleFirstEntryTransparentHint,
            QT_TRANSLATE_NOOP("Text", "The entry of index 0, at 4 bits the first of the bank, has alpha 0.")},
    TextRow{StringId::RuleIndexesInPalette, QT_TRANSLATE_NOOP("Text", "&Indexes inside the palette")},
    TextRow{StringId::RuleIndexesInPaletteHint,
            QT_TRANSLATE_NOOP(
                "Text", "Every texel's entry exists; at 4 bits it is counted from the first of the bank.")},
    TextRow{StringId::RuleAlphaZeroOrFull, QT_TRANSLATE_NOOP("Text", "&Alpha only 0 or full")},
    TextRow{
        StringId::RuleAlphaZeroOrFullHint,
        QT_TRANSLATE_NOOP("Text", "No entry of an IA palette is half transparent: its alpha is 0 or 255.")},
    TextRow{StringId::RuleLargestWidthTip, QT_TRANSLATE_NOOP("Text", "Largest width in texels, 1 to %1")},
    TextRow{StringId::RuleLargestHeightTip, QT_TRANSLATE_NOOP("Text", "Largest height in texels, 1 to %1")},
    TextRow{StringId::RuleBytesTip, QT_TRANSLATE_NOOP("Text", "Most bytes, 1 to %1")},
    TextRow{StringId::RuleColoursTip, QT_TRANSLATE_NOOP("Text", "Most colours of a block, 1 to %1")},
    TextRow{StringId::RuleBlockSideTip,
            QT_TRANSLATE_NOOP("Text", "Texels on each side of a block, %1 to %2")},
    TextRow{StringId::RuleTexelsUnit, QT_TRANSLATE_NOOP("Text", "texels")},
    TextRow{StringId::RuleBytesUnit, QT_TRANSLATE_NOOP("Text", "bytes")},
    TextRow{StringId::RuleColoursUnit, QT_TRANSLATE_NOOP("Text", "in blocks with sides of")},
    TextRow{StringId::RuleBlockUnit, QT_TRANSLATE_NOOP("Text", "texels")},
};

} // namespace dyeworks
