// SPDX-License-Identifier: MIT
#include <xsg/support/SoPreferences.h>

#include <xsg/errors/SoDebugError.h>
#include <xsg/errors/SoReadError.h>
#include <xsg/values/ValueText.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <map>
#include <mutex>
#include <optional>
#include <set>

namespace
{

constexpr std::size_t LargestFile = 1 << 20;

using Settings = std::map<std::string, std::string, std::less<>>;

struct Store {
    std::mutex mutex;
    bool isRead = false;
    SbString path; // null: the usual one
    Settings settings;
    std::set<std::string> warned;
};

Store& store()
{
    static auto& store = *new Store;
    return store;
}

std::optional<std::string> environment(const char* name)
{
    const char* value = std::getenv(name);
    return value && *value ? std::optional<std::string>(value) : std::nullopt;
}

std::string usualPath()
{
    if (const auto path = environment("XSG_PREFERENCES"))
        return *path;
    if (const auto folder = environment("XDG_CONFIG_HOME"))
        return *folder + "/scopix/preferences.conf";
    if (const auto home = environment("HOME"))
        return *home + "/.config/scopix/preferences.conf";
    return {};
}

struct BadLine {
    int number; // 0: the file as a whole
    const char* sentence;
};

// A '#' begins a comment at the start of a word; inside one, as in a file name, it stands for itself.
std::string_view withoutComment(std::string_view line)
{
    for (std::size_t at = line.find('#'); at != std::string_view::npos; at = line.find('#', at + 1)) {
        if (at == 0 || xsg::TextReader::isBlank(line[at - 1]))
            return line.substr(0, at);
    }
    return line;
}

bool readLine(std::string_view line, Settings& settings)
{
    line = xsg::trimmed(withoutComment(line));
    if (line.empty())
        return true;
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos)
        return false;
    const std::string_view name = xsg::trimmed(line.substr(0, equals));
    if (name.empty() || !std::all_of(name.begin(), name.end(), xsg::TextReader::isWordByte))
        return false;
    settings[std::string(name)] = xsg::trimmed(line.substr(equals + 1));
    return true;
}

std::vector<BadLine> readFile(const std::string& path, Settings& settings)
{
    std::vector<BadLine> bad;
    std::ifstream file(path, std::ios::binary);
    std::string text(LargestFile + 1, '\0');
    if (!file || !file.read(text.data(), static_cast<std::streamsize>(text.size())).eof()) {
        if (file.gcount() > static_cast<std::streamsize>(LargestFile))
            bad.push_back({0, "The settings file is too large; expected at most 1 MiB."});
        return bad;
    }
    text.resize(static_cast<std::size_t>(file.gcount()));
    std::string_view rest = text;
    for (int number = 1; !rest.empty(); ++number) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        if (!readLine(rest.substr(0, end), settings))
            bad.push_back({number, "The line is no setting; expected NAME = value."});
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return bad;
}

std::optional<std::string> fromFile(const char* name)
{
    Store& all = store();
    std::string path;
    std::vector<BadLine> bad;
    std::optional<std::string> value;
    {
        const std::lock_guard<std::mutex> lock(all.mutex);
        if (!all.isRead) {
            path = all.path.isNull() ? usualPath() : all.path.str();
            all.settings.clear();
            bad = readFile(path, all.settings);
            all.isRead = true;
        }
        const auto found = all.settings.find(std::string_view(name));
        if (found != all.settings.end())
            value = found->second;
    }
    // Outside the lock: a handler may ask for preferences.
    for (const BadLine& line : bad)
        SoReadError::post(path, line.number, line.sentence);
    return value;
}

std::optional<std::string> lookUp(const char* name)
{
    if (!name || !*name)
        return std::nullopt;
    const auto value = environment(name);
    return value ? value : fromFile(name);
}

void warnOnce(const char* name, const std::string& text, const char* expected)
{
    const std::string sentence = std::string("The setting ") + name + " is \"" + text + "\"; expected " +
                                 expected + ". The default is used.";
    {
        const std::lock_guard<std::mutex> lock(store().mutex);
        if (!store().warned.insert(sentence).second)
            return;
    }
    SoDebugError::postWarning("SoPreferences", sentence);
}

template <class T>
T parsed(const char* name, T fallback, const char* expected)
{
    const auto text = lookUp(name);
    if (!text)
        return fallback;
    T value{};
    xsg::TextReader in(*text);
    if (xsg::ValueText<T>::read(in, value) && in.onlyBlanksLeft())
        return value;
    warnOnce(name, *text, expected);
    return fallback;
}

} // namespace

bool SoPreferences::getBool(const char* name, bool fallback)
{
    return parsed(name, fallback, "1, 0, TRUE or FALSE");
}

int SoPreferences::getInt(const char* name, int fallback)
{
    return parsed(name, fallback, "a whole number");
}

float SoPreferences::getFloat(const char* name, float fallback)
{
    return parsed(name, fallback, "a number");
}

SbString SoPreferences::getString(const char* name, const SbString& fallback)
{
    auto text = lookUp(name);
    return text ? SbString(std::move(*text)) : fallback;
}

void SoPreferences::setFile(const SbString& path)
{
    const std::lock_guard<std::mutex> lock(store().mutex);
    store().path = path;
    store().isRead = false;
}
