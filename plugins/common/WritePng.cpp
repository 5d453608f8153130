#include "common/WritePng.h"

#include "common/InterchangeReason.h"
#include "common/LibraryRecords.h"
#include "common/WriteFile.h"
#include "interchange/PngFile.h"

namespace dyeworks::plugins {

QString writePngFile(const QString& path, const ::TmfImage& image, const ::TlutData* palette,
                     std::int32_t first) {
    const auto records =
        recordsOf({const_cast<::TmfImage*>(&image), const_cast<::TlutData*>(palette), 0, first});
    if (!records)
        return reasonOf({InterchangeError::Kind::NoMemory, {}, 0, 0});
    const auto png =
        writePng(records->image, records->palette ? &*records->palette : nullptr, records->firstEntry);
    if (!png)
        return reasonOf(png.error());
    return writeFile(path, QByteArray::fromRawData(reinterpret_cast<const char*>(png.value().data()),
                                                   static_cast<qsizetype>(png.value().size())));
}

} // namespace dyeworks::plugins
