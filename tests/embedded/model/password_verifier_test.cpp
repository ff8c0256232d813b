#include "excel/embedded/model/password_verifier.hpp"

#include <gtest/gtest.h>

namespace {

using excel::embedded::LegacyPasswordVerifier;

// The values openpyxl's hash_password gives for the same passwords.
TEST(PasswordVerifier, IsExcelsLegacyHash) {
    EXPECT_EQ(LegacyPasswordVerifier("test"), "CBEB");
    EXPECT_EQ(LegacyPasswordVerifier("secret"), "DAA7");
    EXPECT_EQ(LegacyPasswordVerifier("Password123"), "B1EE");
}

TEST(PasswordVerifier, CountsFifteenCharactersAtMost) {
    EXPECT_EQ(LegacyPasswordVerifier("abcdefghijklmnopqrst"), LegacyPasswordVerifier("abcdefghijklmno"));
    EXPECT_NE(LegacyPasswordVerifier("abcdefghijklmn"), LegacyPasswordVerifier("abcdefghijklmno"));
}

TEST(PasswordVerifier, TakesOneByteOfEachCharacter) {
    EXPECT_EQ(LegacyPasswordVerifier("\u00e9t\u00e9"), "C902");  // é as the byte E9, as openpyxl counts it
    EXPECT_EQ(LegacyPasswordVerifier("\u0100"), "CE48");         // U+0100 counts as its high byte, 01
}

}  // namespace
