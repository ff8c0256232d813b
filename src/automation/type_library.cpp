#ifdef _WIN32

#include "automation/type_library.hpp"

#include "excel/com/server_module.hpp"

#include <cstring>
#include <map>
#include <mutex>

namespace automation {

namespace {

struct GuidLess {
    bool operator()(const GUID& a, const GUID& b) const { return std::memcmp(&a, &b, sizeof(GUID)) < 0; }
};

}  // namespace

ITypeLib* ServerTypeLibrary() {
    static ITypeLib* const library = [] {
        wchar_t path[MAX_PATH] = {};
        GetModuleFileNameW(excel::com::ServerModule(), path, MAX_PATH);
        ITypeLib* loaded = nullptr;
        return SUCCEEDED(LoadTypeLibEx(path, REGKIND_NONE, &loaded)) ? loaded : nullptr;  // kept for the module's life
    }();
    return library;
}

ITypeInfo* InterfaceTypeInfo(REFGUID interfaceId) {
    static std::map<GUID, ITypeInfo*, GuidLess> infos;
    static std::mutex infosLock;
    const std::lock_guard<std::mutex> guard(infosLock);
    ITypeInfo*& info = infos[interfaceId];
    if (info == nullptr && ServerTypeLibrary() != nullptr) {
        ServerTypeLibrary()->GetTypeInfoOfGuid(interfaceId, &info);
    }
    return info;
}

}  // namespace automation

#endif  // _WIN32
