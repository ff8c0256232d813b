#pragma once

#include <cstdint>

namespace vos {

// The language whose text takes larger type in reports: Chinese characters need it to stay legible.
inline constexpr int32_t ChineseLanguage = 4;

// The font size for text of that language: the Chinese size for Chinese, the other size otherwise.
inline double SizeForLanguage(int32_t language, double chineseSize, double otherSize) {
    return language == ChineseLanguage ? chineseSize : otherSize;
}

}  // namespace vos
