#pragma once

namespace preview {

inline constexpr int kSuccess = 0;
inline constexpr int kFailure = 1;
inline constexpr int kWrongOptions = 2;

}  // namespace preview
