#include "ui/DisabledReason.h"

#include "platform/StringId.h"

namespace dyeworks {

namespace {

/// What is missing of a command that no target takes. Those of images are most of them.
StringId needOf(CommandId id, const OpenThings& open) {
    switch (id) {
    case ID_FILE_CLOSE:
    case ID_FILE_SAVE:
    case ID_FILE_SAVE_AS:
        return StringId::WhyNoDocument;
    case ID_NODE_ADD:
    case ID_NODE_EDIT:
    case ID_NODE_REMOVE:
    case ID_NODE_PROPERTY:
        return open.project ? StringId::WhyNoTree : StringId::WhyNoProject;
    case ID_ZOOM_SPECIFY:
        return StringId::WhyZoomsListed;
    default:
        return StringId::WhyNoImage;
    }
}

} // namespace

std::optional<StringId> disabledReason(const CommandUi& state, const OpenThings& open) {
    if (state.enabled)
        return std::nullopt;
    const StringId reason = state.reason ? *state.reason : needOf(state.id, open);
    return reason == StringId::WhyNoImage && open.image ? StringId::WhyImageBehind : reason;
}

} // namespace dyeworks
