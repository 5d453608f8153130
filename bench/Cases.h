#pragma once

namespace dyeworks {

void registerCanvasCases();
void registerDocumentCases();
void registerDrawCases();
void registerFileCases();
void registerPaletteUseCases();
void registerPngCases();
void registerPreviewCases();
void registerProjectCases();
void registerRuleCases();
void registerSearchCases();
void registerViewCases();

} // namespace dyeworks
