#include "bench/Cases.h"
#include "framework/CommandTable.h"
#include "framework/KanjiReading.h"
#include "ui/CommandSearchBox.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <benchmark/benchmark.h>

#include <array>
#include <cstdlib>
#include <string>
#include <vector>

namespace dyeworks {

namespace {

// What is found most and least.
constexpr std::array kTyped{"z", "zo", "zoo", "zoom", "e", "e t", "pal", "q", "qx", "せ", "せん", "せんた"};

/// Every command by three names and three places, as in Japanese.
std::vector<ListedCommand> everyCommand() {
    std::vector<ListedCommand> commands;
    for (const CommandRow& row : commandTable()) {
        ListedCommand& command = commands.emplace_back();
        command.id = row.id;
        command.name = withoutMnemonic(row.menuText);
        command.place = "Palette > Entries";
        command.reason = row.id % 2 == 0 ? "no image is open" : "";
        command.search.names = {"選択の解除", kanaReading("選択の解除").value_or(""), command.name};
        command.search.tips = {toolTipText(row)};
        for (const std::string& name : command.search.names)
            command.search.places.push_back("Palette Entries " + name);
    }
    return commands;
}

std::vector<SearchNames> namesOf(const std::vector<ListedCommand>& commands) {
    std::vector<SearchNames> names;
    for (const ListedCommand& each : commands)
        names.push_back(each.search);
    return names;
}

void matchKey(benchmark::State& state) {
    const CommandSearch search(namesOf(everyCommand()));
    std::size_t turn = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(search.find(kTyped.at(++turn % kTyped.size())));
}

/// What is typed looked for as it is, and nothing ranked.
void plainFind(benchmark::State& state) {
    std::vector<std::u32string> texts;
    for (const SearchNames& each : namesOf(everyCommand())) {
        for (const auto* ways : {&each.names, &each.tips, &each.places}) {
            for (const std::string& text : *ways)
                texts.push_back(searchText(text).letters);
        }
    }
    std::size_t turn = 0;
    for (auto _ : state) {
        const std::u32string typed = searchText(kTyped.at(++turn % kTyped.size())).letters;
        for (const std::u32string& text : texts)
            benchmark::DoNotOptimize(text.find(typed));
    }
}

/// Notices that a widget has been painted.
class PaintWatch : public QObject {
public:
    explicit PaintWatch(QWidget& watched) { watched.installEventFilter(this); }
    bool painted = false;

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        painted = painted || event->type() == QEvent::Paint;
        return false;
    }
};

/// A key that is pressed in the field, until the list is painted.
void pressKey(benchmark::State& state) {
    QWidget owner;
    owner.resize(1152, 760);
    owner.show();
    CommandSearchBox box(owner);
    box.open(everyCommand());
    QCoreApplication::processEvents();
    QLineEdit& field = *box.findChild<QLineEdit*>();
    PaintWatch list(*box.findChild<QListView*>()->viewport());
    std::size_t turn = 0;
    for (auto _ : state) {
        // A word of three letters, and away with it.
        const char letter = "zoo"[turn % 4 % 3];
        const bool back = ++turn % 4 == 0;
        if (back)
            field.selectAll();
        QKeyEvent press(QEvent::KeyPress, back ? Qt::Key_Delete : Qt::Key_A, Qt::NoModifier,
                        back ? QString() : QString(QLatin1Char(letter)));
        list.painted = false;
        QCoreApplication::sendEvent(&field, &press);
        while (!list.painted)
            QCoreApplication::processEvents();
    }
}

} // namespace

void registerSearchCases() {
    benchmark::RegisterBenchmark("Search-key", matchKey)->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("Search-plain-find", plainFind)->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("Search-key-painted", pressKey)->Unit(benchmark::kMicrosecond);
}

} // namespace dyeworks
