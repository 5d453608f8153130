#pragma once

namespace dyeworks {

/// Lets assistive technology see image views as canvases whose value is the texel at the texel cursor. Once
/// is enough; more is harmless.
void installImageViewAccessible();

} // namespace dyeworks
