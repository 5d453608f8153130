#include "common/WriteFile.h"

#include "common/Say.h"
#include "platform/posix/HostFile.h"

#include <QFile>

#include <cstddef>
#include <span>

namespace dyeworks::plugins {

namespace {

// In the words in which the program says them.
QString reasonOf(FileError error) {
    switch (error) {
    case FileError::NotFound:
        return say("The file or its folder does not exist.", "ファイルまたはフォルダーがありません。");
    case FileError::AccessDenied:
        return say("You do not have permission to use it.", "アクセスする権限がありません。");
    case FileError::NotAFile:
        return say("The name is that of a folder.", "指定された名前はフォルダーのものです。");
    case FileError::NoSpace:
        return say("There is no space left on the disk.", "ディスクに空き容量がありません。");
    case FileError::ReadOnly:
        return say("The disk can only be read.", "ディスクは読み取り専用です。");
    case FileError::NameTooLong:
        return say("The name is too long.", "名前が長すぎます。");
    case FileError::TooLarge:
        return say("There is not enough memory.", "メモリが足りません。");
    case FileError::NotRegular:
        return say("It is a device or a pipe, which holds no file.",
                   "デバイスまたはパイプで、ファイルではありません。");
    case FileError::BrokenLink:
        return say("It is a link to a file that does not exist.", "存在しないファイルへのリンクです。");
    case FileError::Other:
        break;
    }
    return say("The disk reported an error.", "ディスクでエラーが発生しました。");
}

} // namespace

QString writeFile(const QString& path, const QByteArray& bytes) {
    const auto contents = std::as_bytes(std::span(bytes.data(), static_cast<std::size_t>(bytes.size())));
    const auto error = writeHostFile(QFile::encodeName(path).toStdString(), FilePieces(&contents, 1));
    return error ? reasonOf(*error) : QString();
}

} // namespace dyeworks::plugins
