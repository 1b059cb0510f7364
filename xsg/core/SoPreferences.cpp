// SPDX-License-Identifier: MIT
#include <xsg/core/SoPreferences.h>

#include <xsg/core/Context.h>
#include <xsg/errors/SoDebugError.h>
#include <xsg/values/SbValueText.h>

#include <cstdlib>
#include <optional>

namespace
{

xsg::Context::Preferences& store()
{
    return xsg::Context::get().preferences;
}

std::optional<std::string> environment(const char* name)
{
    const char* value = std::getenv(name);
    return value && *value ? std::optional<std::string>(value) : std::nullopt;
}

std::optional<std::string> setByApplication(const char* name)
{
    const std::lock_guard<std::mutex> lock(store().mutex);
    const auto found = store().values.find(std::string_view(name));
    return found != store().values.end() ? std::optional<std::string>(found->second) : std::nullopt;
}

std::optional<std::string> lookUp(const char* name)
{
    if (!name || !*name)
        return std::nullopt;
    const auto value = environment(name);
    return value ? value : setByApplication(name);
}

void warnOnce(const SbSentence& sentence)
{
    {
        const std::lock_guard<std::mutex> lock(store().mutex);
        if (!store().warned.insert(sentence.getText()).second)
            return;
    }
    // Outside the lock: a handler may ask for preferences.
    SoDebugError::postWarning("SoPreferences", sentence);
}

SbSentence misfit(bool /*type*/, const char* name, const std::string& text)
{
    return SbSentence("The setting %1 is \"%2\"; expected 1, 0, TRUE or FALSE. The default is used.", name,
                      text);
}

SbSentence misfit(int /*type*/, const char* name, const std::string& text)
{
    return SbSentence("The setting %1 is \"%2\"; expected a whole number. The default is used.", name, text);
}

SbSentence misfit(float /*type*/, const char* name, const std::string& text)
{
    return SbSentence("The setting %1 is \"%2\"; expected a number. The default is used.", name, text);
}

template <class T>
T parsed(const char* name, T fallback)
{
    const auto text = lookUp(name);
    if (!text)
        return fallback;
    T value{};
    xsg::TextReader in(*text);
    if (xsg::ValueText<T>::read(in, value) && in.onlyBlanksLeft())
        return value;
    warnOnce(misfit(fallback, name, *text));
    return fallback;
}

} // namespace

bool SoPreferences::getBool(const char* name, bool fallback)
{
    return parsed(name, fallback);
}

int SoPreferences::getInt(const char* name, int fallback)
{
    return parsed(name, fallback);
}

float SoPreferences::getFloat(const char* name, float fallback)
{
    return parsed(name, fallback);
}

SbString SoPreferences::getString(const char* name, const SbString& fallback)
{
    auto text = lookUp(name);
    return text ? SbString(std::move(*text)) : fallback;
}

void SoPreferences::setValue(const char* name, const SbString& value)
{
    if (!name || !*name)
        return;
    const std::lock_guard<std::mutex> lock(store().mutex);
    if (value.isNull())
        store().values.erase(name);
    else
        store().values[name] = value.str();
}
