// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/core/SoField.h>

#include <memory>
#include <string>
#include <vector>

/// What every field type reads and refuses, made from one row per type.
struct FieldSample {
    std::string type; // as SoType names it: "SFFloat"
    bool isList = false;
    int numbers = 0; // per value; 0: no numbers
    std::vector<std::string>
        values; // texts of one value as the field writes them, edges of the range among them
    std::vector<std::string> badValues; // texts that are no value

    /// Texts of the whole field that get() gives back letter by letter.
    std::vector<std::string> goodTexts() const;
    /// Texts that set() refuses.
    std::vector<std::string> badTexts() const;
    /// A new field that stands alone; enumerations know the names RED, "DARK GREEN", BLUE, 2D.
    std::unique_ptr<SoField> create() const;
};

const std::vector<FieldSample>& fieldSamples();
const FieldSample& sampleOf(const std::string& type);

inline std::string textOf(const SoField& field)
{
    SbString text;
    field.get(text);
    return text.str();
}
