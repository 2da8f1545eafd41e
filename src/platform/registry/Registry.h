#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace platform {

/// One text to write.
struct RegistryText {
    std::string key;
    std::string name;
    std::string value;
};

/// The machine's settings: values of text or 32-bit number under keys such as
/// "SOFTWARE\Vestrel\Global\Preferences". Keys and names compare without regard to case.
class Registry {
  public:
    virtual ~Registry() = default;

    /// Returns nothing if the value is missing or of the other type, or if the store can't be read.
    virtual std::optional<std::string> ReadText(std::string_view key, std::string_view name) = 0;
    virtual std::optional<std::int32_t> ReadNumber(std::string_view key, std::string_view name) = 0;

    /// Returns false if the store can't be written; it is then unchanged.
    virtual bool WriteText(std::string_view key, std::string_view name, std::string_view value) = 0;
    virtual bool WriteNumber(std::string_view key, std::string_view name, std::int32_t value) = 0;
    /// Writes several texts in one step, all or none of them.
    virtual bool WriteTexts(std::span<const RegistryText> texts) = 0;

    /// Returns whether the store can't be understood, so that all of its values are missing.
    virtual bool IsDamaged() { return false; }
};

/// Returns the registry kept as JSON in `file`: it is read again before each write, replaced in one
/// step, and private to the user. A damaged file reads as empty and is put aside
/// ("registry.json.damaged") before the first write replaces it.
std::unique_ptr<Registry> OpenJsonRegistry(std::filesystem::path file);

/// Returns a registry that exists only in memory, for tests.
std::unique_ptr<Registry> MakeMemoryRegistry();

/// Returns the registry of this process: `registry.json` below the configuration home unless
/// SetRegistry sets another one; setting null restores the file.
Registry& TheRegistry();
void SetRegistry(std::unique_ptr<Registry> registry);

} // namespace platform
