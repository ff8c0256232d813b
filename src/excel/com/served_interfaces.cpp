#ifdef _WIN32

#include "excel/com/served_interfaces.hpp"

#include "excel/com/member_name.hpp"

namespace excel::com {

namespace {

const std::optional<Variant> kMissing;

}  // namespace

CallArguments::CallArguments(std::vector<std::optional<Variant>> values, std::optional<Variant> putValue)
    : values_(std::move(values)), putValue_(std::move(putValue)) {
    while (!values_.empty() && !values_.back()) {
        values_.pop_back();
    }
}

const std::optional<Variant>& CallArguments::At(size_t index) const {
    if (index == PutValue) {
        return putValue_;
    }
    return index < values_.size() ? values_[index] : kMissing;
}

const Variant& CallArguments::Required(size_t index) const {
    const std::optional<Variant>& value = At(index);
    if (!value) {
        throw DispatchFailure{DISP_E_PARAMNOTOPTIONAL};
    }
    return *value;
}

Variant CallArguments::Value(size_t index) const {
    const std::optional<Variant>& value = At(index);
    return value ? *value : Variant();
}

int32_t CallArguments::Int(size_t index) const {
    return Required(index).ToInt();
}

int32_t CallArguments::Int(size_t index, int32_t fallback) const {
    const std::optional<Variant>& value = At(index);
    return value ? value->ToInt() : fallback;
}

double CallArguments::Double(size_t index) const {
    return Required(index).ToDouble();
}

bool CallArguments::Bool(size_t index) const {
    return Required(index).ToBool();
}

bool CallArguments::Bool(size_t index, bool fallback) const {
    const std::optional<Variant>& value = At(index);
    return value ? value->ToBool() : fallback;
}

std::string CallArguments::Text(size_t index) const {
    return Required(index).ToString();
}

Variant CallArguments::ToDefaultMember(const Variant& result) const {
    if (putValue_ && Count() > 0) {
        // Cells(2, 3) = 5: the arguments pick the object, and its own default member takes the value.
        const Variant picked = CallArguments(values_, std::nullopt).ToDefaultMember(result);
        return CallArguments({}, putValue_).ToDefaultMember(picked);
    }
    const std::shared_ptr<excel::Object> object = result.IsObject() ? result.ToObject() : nullptr;
    const ServedInterface* served = object != nullptr ? ServedInterfaceOfObject(*object) : nullptr;
    const ServedMember* member = served != nullptr ? served->Member(DISPID_VALUE, Count() > 0) : nullptr;
    if (member == nullptr) {
        WrongArgumentCount();
    }
    return member->invoke(*object, putValue_.has_value(), *this);
}

ServedInterface::ServedInterface(const char* name, const GUID& id, std::span<const ServedMember> members,
                                 std::string_view item)
    : name_(name), id_(id), members_(members) {
    for (size_t index = 0; index < members.size(); ++index) {
        ids_.emplace(FoldedMemberName(members[index].name), static_cast<DISPID>(index + 1));
    }
    if (!item.empty()) {
        item_ = IdOf(item);
        value_ = IdOf("Value");
    }
}

std::optional<DISPID> ServedInterface::IdOf(std::string_view name) const {
    const auto found = ids_.find(FoldedMemberName(name));
    return found != ids_.end() ? std::optional<DISPID>(found->second) : std::nullopt;
}

const ServedMember* ServedInterface::Member(DISPID id, bool withArguments) const {
    if (id == DISPID_VALUE) {
        const std::optional<DISPID> chosen = withArguments || !value_ ? item_ : value_;
        if (!chosen) {
            return nullptr;
        }
        id = *chosen;
    }
    if (id < 1 || static_cast<size_t>(id) > members_.size()) {
        return nullptr;
    }
    return &members_[static_cast<size_t>(id) - 1];
}

Variant WrongArgumentCount() {
    throw DispatchFailure{DISP_E_BADPARAMCOUNT};
}

Variant NotAProperty() {
    throw DispatchFailure{DISP_E_MEMBERNOTFOUND};
}

}  // namespace excel::com

#endif  // _WIN32
