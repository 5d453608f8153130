#include "source/SourceFiles.h"

#include "common/InterchangeReason.h"
#include "common/LibraryRecords.h"
#include "common/Say.h"
#include "common/WriteFile.h"

#include <QFile>
#include <QFileInfo>

namespace dyeworks::plugins {

namespace {

QString whyNot(const InterchangeError& error) {
    return error.kind == InterchangeError::Kind::NoColours
               ? say("Neither texels nor a palette are there to be written.",
                     "書き出すテクセルもパレットもありません。")
               : reasonOf(error);
}

template <typename Bytes>
QByteArray bytesOf(const Bytes& bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())};
}

SourceFailure writePair(const SourcePair& pair, const QString& headerPath) {
    QFile before(headerPath);
    const bool wasThere = before.exists();
    // What cannot be put back is not touched.
    if (wasThere && !before.open(QIODevice::ReadOnly))
        return {headerPath, before.errorString()};
    const QByteArray old = wasThere ? before.readAll() : QByteArray();
    if (before.error() != QFileDevice::NoError)
        return {headerPath, before.errorString()};
    before.close();
    if (const QString reason = writeFile(headerPath, bytesOf(pair.header)); !reason.isEmpty())
        return {headerPath, reason};
    const QString sourcePath = sourcePathFor(headerPath);
    const QString reason = writeFile(sourcePath, bytesOf(pair.source));
    if (reason.isEmpty())
        return {};
    // A header without its source, or with an older one, would build into something else.
    if (!wasThere)
        QFile::remove(headerPath);
    else if (const QString lost = writeFile(headerPath, old); !lost.isEmpty())
        return {headerPath, lost};
    return {sourcePath, reason};
}

} // namespace

QString sourcePathFor(const QString& headerPath) {
    const QFileInfo header(headerPath);
    return header.path() + QLatin1Char('/') + header.completeBaseName() + QStringLiteral(".c");
}

SourceFailure writeSource(const ::PlugInPicture& picture, const SourceChoices& choices, const QString& path) {
    const auto records = recordsOf(picture);
    if (!records)
        return {path, whyNot({InterchangeError::Kind::NoMemory, {}, 0, 0})};
    const TlutData* const palette = records->palette ? &*records->palette : nullptr;
    const auto write = [&](const auto& made) -> SourceFailure {
        return {path, made ? writeFile(path, bytesOf(made.value())) : whyNot(made.error())};
    };
    switch (choices.kind) {
    case SourceKind::Header:
        return write(headerWithData(records->image, palette, records->firstEntry, choices.options));
    case SourceKind::Raw:
        return write(rawBytes(records->image, palette, records->firstEntry, choices.options));
    case SourceKind::HeaderAndSource:
        break;
    }
    const QString name = QFileInfo(path).fileName();
    // No C compiler finds such a file in an #include.
    if (name.contains(QLatin1Char('"')) || name.contains(QLatin1Char('\\')) ||
        name.contains(QLatin1Char('\n')))
        return {path, say("A C source cannot include a file of this name.",
                          "この名前のファイルは C ソースからインクルードできません。")};
    if (sourcePathFor(path) == path)
        return {path, say("Header and source would be the same file.",
                          "ヘッダーとソースが同じファイルになります。")};
    const auto pair =
        headerAndSource(records->image, palette, records->firstEntry, choices.options, name.toStdString());
    return pair ? writePair(pair.value(), path) : SourceFailure{path, whyNot(pair.error())};
}

} // namespace dyeworks::plugins
