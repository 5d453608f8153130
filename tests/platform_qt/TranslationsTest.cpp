#include "Desktop.h"
#include "framework/CommandTable.h"
#include "platform/StringId.h"
#include "platform/qt/Language.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTranslator>
#include <QXmlStreamReader>

namespace dyeworks {

namespace {

class Translations : public Desktop {
protected:
    Translations() {
        EXPECT_TRUE(installLanguage(*QCoreApplication::instance(), kLocaleJapanese));
        EXPECT_TRUE(japanese_.load(QStringLiteral(":/translations/dyeworks_ja.qm")));
    }
    ~Translations() override { installLanguage(*QCoreApplication::instance(), kLocaleEnglish); }

    /// Whether the compiled Japanese texts have `source`; a text may be the same in both languages.
    [[nodiscard]] bool has(const char* context, const char* source) {
        return !japanese_.translate(context, source).isEmpty();
    }

private:
    QTranslator japanese_;
};

QString mnemonicOf(const QString& text) {
    static const QRegularExpression kMnemonic(QStringLiteral("(?<!&)&([^&\\s])"));
    return kMnemonic.match(text).captured(1).toUpper();
}

QStringList placesOf(const QString& text) {
    static const QRegularExpression kPlace(QStringLiteral("%\\d+|%[sdi]"));
    QStringList places;
    for (auto match = kPlace.globalMatch(text); match.hasNext();)
        places << match.next().captured();
    places.sort();
    return places;
}

} // namespace

TEST_F(Translations, HaveEveryTextOfTheTables) {
    for (int i = 0; i < static_cast<int>(StringId::Count); ++i) {
        const char* const source = englishText(static_cast<StringId>(i));
        EXPECT_TRUE(has(kTextContext, source)) << source;
    }
    for (const CommandRow& row : commandTable()) {
        EXPECT_TRUE(has(kCommandContext, row.menuText)) << row.menuText;
        EXPECT_TRUE(row.prompt[0] == '\0' || has(kCommandContext, row.prompt)) << row.prompt;
    }
}

TEST_F(Translations, KeepMnemonicsPlacesAndLineBreaks) {
    QFile file(QStringLiteral(DYEWORKS_SOURCE_DIR "/translations/dyeworks_ja.ts"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&file);
    QString context;
    QString source;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        if (xml.name() == QStringLiteral("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QStringLiteral("source")) {
            source = xml.readElementText();
        } else if (xml.name() == QStringLiteral("translation")) {
            const QString translation = xml.readElementText();
            EXPECT_EQ(mnemonicOf(translation), mnemonicOf(source)) << translation.toStdString();
            EXPECT_EQ(placesOf(translation), placesOf(source)) << translation.toStdString();
            EXPECT_EQ(translation.endsWith(QStringLiteral("...")), source.endsWith(QStringLiteral("...")))
                << translation.toStdString();
            // The line break of a prompt parts status line and tool tip.
            if (context == QLatin1String(kCommandContext)) {
                EXPECT_EQ(translation.count(u'\n'), source.count(u'\n')) << translation.toStdString();
            }
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
}

TEST_F(Translations, AreUpToDateWithTheSources) {
    QProcess check;
    check.setProcessChannelMode(QProcess::MergedChannels);
    check.start(QStringLiteral(DYEWORKS_SOURCE_DIR "/tools/update-translations"),
                {QStringLiteral("--check")});
    ASSERT_TRUE(check.waitForFinished(120000)) << check.errorString().toStdString();
    EXPECT_EQ(check.exitCode(), 0) << check.readAll().constData();
}

TEST_F(Translations, FollowTheLanguageThatWasInstalledLast) {
    const auto yes = [] { return QCoreApplication::translate("QPlatformTheme", "&Yes"); };
    EXPECT_EQ(text(StringId::FileErrorNameTooLong), "名前が長すぎます。");
    EXPECT_EQ(yes(), QString::fromUtf8("はい(&Y)"));
    EXPECT_EQ(QLocale().language(), QLocale::Japanese);
    ASSERT_TRUE(installLanguage(*QCoreApplication::instance(), std::string("ja")));
    ASSERT_TRUE(installLanguage(*QCoreApplication::instance(), std::string("en")));
    EXPECT_EQ(text(StringId::FileErrorNameTooLong), englishText(StringId::FileErrorNameTooLong));
    EXPECT_EQ(yes(), QStringLiteral("&Yes"));
    EXPECT_NE(QLocale().language(), QLocale::Japanese);
}

} // namespace dyeworks
