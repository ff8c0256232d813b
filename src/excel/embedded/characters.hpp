#pragma once

#include "excel/embedded/worksheet_model.hpp"

#include <excel/characters.hpp>

#include <memory>

namespace excel::embedded {

// Characters start..start+length-1 of one cell's text (length -1: to the end).
class CharactersView final : public excel::Characters {
public:
    CharactersView(std::shared_ptr<WorksheetModel> sheet, int32_t row, int32_t column, int32_t start, int32_t length)
        : sheet_(std::move(sheet)), row_(row), column_(column), start_(start), length_(length) {}

    std::string Text() override;
    void SetText(const std::string& text) override;
    std::string Caption() override;
    void SetCaption(const std::string& text) override;
    int32_t Count() override;
    std::shared_ptr<excel::Font> Font() override;
    void Insert(const std::string& text) override;
    void Delete() override;

private:
    std::shared_ptr<WorksheetModel> sheet_;
    int32_t row_;
    int32_t column_;
    int32_t start_;
    int32_t length_;
};

}  // namespace excel::embedded
