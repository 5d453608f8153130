#pragma once

namespace dyeworks {

void registerCanvasCases();
void registerDrawCases();
void registerFileCases();

} // namespace dyeworks
