#pragma once

namespace Wexa {

// The sign in a balloon tip. Other values show none.
enum class BalloonTipIconType : int { None = 0, Information = 1, Warning = 2, Error = 3 };

}  // namespace Wexa
