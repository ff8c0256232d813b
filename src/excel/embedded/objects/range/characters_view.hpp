#pragma once

#include "excel/embedded/objects/rich_text_source.hpp"

#include <excel/characters.hpp>
#include <excel/variant.hpp>

#include <memory>

namespace excel::embedded {

// Characters start..start+length-1 (length -1: to the end) of a cell's or a shape's text.
class CharactersView final : public excel::Characters {
public:
    CharactersView(std::shared_ptr<RichTextSource> source, int32_t start, int32_t length)
        : source_(std::move(source)), start_(start), length_(length) {}

    // The characters the object model's optional start and length address; refused, with the
    // message naming the owner's class, for a start below 1 or a negative length.
    static std::shared_ptr<excel::Characters> Make(std::shared_ptr<RichTextSource> source, const Variant& start,
                                                   const Variant& length, const std::string& ownerClass);

    std::string Text() override;
    void SetText(const std::string& text) override;
    std::string Caption() override;
    void SetCaption(const std::string& text) override;
    int32_t Count() override;
    std::shared_ptr<excel::Font> Font() override;
    void Insert(const std::string& text) override;
    void Delete() override;

private:
    std::shared_ptr<RichTextSource> source_;
    int32_t start_;
    int32_t length_;
};

}  // namespace excel::embedded
