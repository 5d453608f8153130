#include "bench/Cases.h"
#include "platform/fake/FakePlatform.h"

#include <QApplication>
#include <benchmark/benchmark.h>

#include <malloc.h>

int main(int argc, char** argv) {
    // Large blocks are new pages each time, for cases and baselines alike. Left alone, the heap keeps some of
    // them, depending on what ran before.
    mallopt(M_MMAP_THRESHOLD, 1 << 20);
    // For the widgets among the cases.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const dyeworks::FakePlatform platform;
    dyeworks::registerCanvasCases();
    dyeworks::registerDocumentCases();
    dyeworks::registerDrawCases();
    dyeworks::registerFileCases();
    dyeworks::registerPaletteUseCases();
    dyeworks::registerPngCases();
    dyeworks::registerPreviewCases();
    dyeworks::registerProjectCases();
    dyeworks::registerRuleCases();
    dyeworks::registerSearchCases();
    dyeworks::registerViewCases();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
