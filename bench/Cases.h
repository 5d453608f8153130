#pragma once

namespace dyeworks {

void registerCanvasCases();
void registerDocumentCases();
void registerDrawCases();
void registerFileCases();
void registerProjectCases();
void registerViewCases();

} // namespace dyeworks
