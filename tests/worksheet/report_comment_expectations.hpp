#pragma once

#include <excel/excel.hpp>

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>

// What every comment a client adds looks like: hidden, 216 x 90 points, white, with a 2.5 point
// navy outline, the header text bold and underlined over the plain main text (ASCII texts: the
// lengths are counted in bytes).
inline void ExpectReportComment(const std::shared_ptr<excel::Comment>& comment, const std::string& header,
                                const std::string& main) {
    ASSERT_NE(comment, nullptr);
    EXPECT_EQ(comment->Text(), header + "\n" + main);
    EXPECT_FALSE(comment->Visible());
    const auto shape = comment->Shape();
    EXPECT_DOUBLE_EQ(shape->Width(), 216.0);
    EXPECT_DOUBLE_EQ(shape->Height(), 90.0);
    EXPECT_EQ(shape->Fill()->ForeColor()->RGB(), 0xFFFFFF);
    EXPECT_EQ(shape->Line()->ForeColor()->RGB(), 0x800000);
    EXPECT_DOUBLE_EQ(shape->Line()->Weight(), 2.5);
    const auto frame = shape->TextFrame();
    const auto headerLength = static_cast<int32_t>(header.size());
    const auto headerFont = frame->Characters(1, headerLength)->Font();
    EXPECT_TRUE(headerFont->Bold().ToBool());
    EXPECT_EQ(headerFont->Underline().ToInt(), excel::xlUnderlineStyleSingle);
    const auto mainFont = frame->Characters(headerLength + 2, static_cast<int32_t>(main.size()))->Font();
    EXPECT_FALSE(mainFont->Bold().ToBool());
    EXPECT_EQ(mainFont->Underline().ToInt(), excel::xlUnderlineStyleNone);
    EXPECT_FALSE(frame->AutoMargins());
    EXPECT_DOUBLE_EQ(frame->MarginLeft(), 3.6);
    EXPECT_DOUBLE_EQ(frame->MarginRight(), 3.6);
    EXPECT_DOUBLE_EQ(frame->MarginTop(), 5.76);
    EXPECT_DOUBLE_EQ(frame->MarginBottom(), 5.76);
}
