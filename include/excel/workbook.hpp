#pragma once

#include <excel/fwd.hpp>
#include <excel/object.hpp>
#include <excel/variant.hpp>

#include <cstdint>
#include <memory>
#include <string>

namespace excel {

class Workbook : public Object {
public:
    virtual std::shared_ptr<excel::Application> Application() = 0;
    virtual std::string Name() = 0;      // "Book1" until saved, then the file name
    virtual std::string FullName() = 0;  // the full path once saved
    virtual std::string Path() = 0;

    virtual std::shared_ptr<excel::Sheets> Worksheets() = 0;
    virtual std::shared_ptr<excel::Worksheet> Worksheets(const Variant& index) = 0;
    virtual std::shared_ptr<excel::Sheets> Sheets() = 0;
    virtual std::shared_ptr<excel::Worksheet> Sheets(const Variant& index) = 0;
    virtual std::shared_ptr<excel::Worksheet> ActiveSheet() = 0;
    virtual std::shared_ptr<excel::Names> Names() = 0;
    virtual std::shared_ptr<excel::Windows> Windows() = 0;
    virtual std::shared_ptr<excel::Window> Windows(const Variant& index) = 0;

    // The 56-colour palette behind ColorIndex: Colors(i) is an RGB Long (0x00BBGGRR), i in 1..56.
    virtual Variant Colors(const Variant& index = {}) = 0;
    virtual void SetColors(const Variant& index, const Variant& rgb) = 0;
    virtual void ResetColors() = 0;

    virtual void Protect(const Variant& password = {}, const Variant& structure = {}, const Variant& windows = {}) = 0;
    virtual void Unprotect(const Variant& password = {}) = 0;
    virtual bool ProtectStructure() = 0;
    virtual bool ProtectWindows() = 0;
    // Whether dates count from 1904-01-01 instead of 1900-01-01. Setting it keeps the numbers the
    // cells store, so the dates they show move by 1,462 days.
    virtual bool Date1904() = 0;
    virtual void SetDate1904(bool date1904) = 0;
    virtual bool ReadOnly() = 0;
    virtual bool Saved() = 0;

    virtual void Activate() = 0;
    // Saves as an .xlsx package. The target is replaced only once the new file is complete.
    virtual void SaveAs(const std::string& fileName, const Variant& fileFormat = {}) = 0;
    virtual void Save() = 0;
    virtual void Close(const Variant& saveChanges = {}, const Variant& fileName = {}) = 0;
};

}  // namespace excel
