#pragma once

#include "interchange/TextureSource.h"

#include <QString>

struct PlugInPicture;

namespace dyeworks::plugins {

enum class SourceKind { Header, HeaderAndSource, Raw };

struct SourceChoices {
    SourceKind kind = SourceKind::Header;
    SourceOptions options;
};

/// Why a file is not there, in the user's language.
struct SourceFailure {
    QString path;
    QString reason; ///< Empty when all went well.
};

/// Writes the picture as the choices say; `path` is that of the header or of the raw bytes, the source stands
/// beside the header. Of two files both are written, or the header is put back as it was.
[[nodiscard]] SourceFailure writeSource(const ::PlugInPicture& picture, const SourceChoices& choices,
                                        const QString& path);

/// Of the source that goes with the header.
[[nodiscard]] QString sourcePathFor(const QString& headerPath);

} // namespace dyeworks::plugins
