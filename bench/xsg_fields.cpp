// SPDX-License-Identifier: MIT
// What fields cost beside the plain thing: text of numbers, inserting, notifying.
#include "Ratios.h"

#include <support/SoFieldGallery.h>
#include <xsg/fields/SoMFFloat.h>
#include <xsg/fields/SoSFFloat.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/sensors/SoFieldSensor.h>
#include <xsg/sensors/SoNodeSensor.h>
#include <xsg/sensors/SoSensorQueue.h>

#include <charconv>
#include <random>

namespace
{

constexpr int Million = 1'000'000;

const std::vector<float>& numbers()
{
    static const std::vector<float> all = [] {
        std::mt19937 random(1);
        std::uniform_real_distribution<float> value(-1000, 1000);
        std::vector<float> made(Million);
        for (float& number : made)
            number = value(random);
        return made;
    }();
    return all;
}

void textOutPlain(benchmark::State& state)
{
    std::vector<char> buffer(static_cast<std::size_t>(Million) * 20);
    for ([[maybe_unused]] auto turn : state) {
        char* at = buffer.data();
        for (const float number : numbers()) {
            at = std::to_chars(at, at + 32, number).ptr;
            *at++ = ',';
            *at++ = ' ';
        }
        benchmark::DoNotOptimize(at);
    }
}
BENCHMARK(textOutPlain)->Unit(benchmark::kMillisecond);

void textOutField(benchmark::State& state)
{
    SoMFFloat field;
    field.setValues(numbers());
    SbString text;
    for ([[maybe_unused]] auto turn : state) {
        field.get(text);
        benchmark::DoNotOptimize(text);
    }
}
BENCHMARK(textOutField)->Unit(benchmark::kMillisecond);

std::string listText()
{
    SoMFFloat field;
    field.setValues(numbers());
    SbString text;
    field.get(text);
    return text.str();
}

void textInPlain(benchmark::State& state)
{
    const std::string text = listText();
    for ([[maybe_unused]] auto turn : state) {
        std::vector<float> values;
        const char* at = text.data() + 2;
        const char* end = text.data() + text.size();
        while (at < end && *at != ']') {
            float value = 0;
            at = std::from_chars(at, end, value).ptr;
            values.push_back(value);
            while (at < end && (*at == ',' || *at == ' '))
                ++at;
        }
        benchmark::DoNotOptimize(values.data());
    }
}
BENCHMARK(textInPlain)->Unit(benchmark::kMillisecond);

void textInField(benchmark::State& state)
{
    const SbString text(listText());
    SoMFFloat field;
    for ([[maybe_unused]] auto turn : state)
        benchmark::DoNotOptimize(field.set(text));
}
BENCHMARK(textInField)->Unit(benchmark::kMillisecond);

void setOneWithSensor(benchmark::State& state)
{
    SoMFFloat field;
    field.setNum(static_cast<int>(state.range(0)));
    SoFieldSensor sensor;
    sensor.attach(&field);
    const int middle = field.getNum() / 2;
    float value = 0;
    for ([[maybe_unused]] auto turn : state) {
        field.set1Value(middle, value += 1);
        SoSensorQueue::getInstance().process();
    }
}
BENCHMARK(setOneWithSensor)->Arg(100)->Arg(10'000)->Arg(Million);

void textOfOne(benchmark::State& state)
{
    SoMFFloat field;
    field.setNum(static_cast<int>(state.range(0)));
    const int middle = field.getNum() / 2;
    SbString text;
    for ([[maybe_unused]] auto turn : state) {
        field.set1(middle, "0.5");
        field.get1(middle, text);
    }
}
BENCHMARK(textOfOne)->Arg(100)->Arg(Million);

void insertPlain(benchmark::State& state)
{
    std::vector<float> values = numbers();
    for ([[maybe_unused]] auto turn : state) {
        values.insert(values.begin() + Million / 2, 1, 0.0F);
        values.erase(values.begin() + Million / 2);
        benchmark::DoNotOptimize(values.data());
    }
}
BENCHMARK(insertPlain)->Unit(benchmark::kMicrosecond);

void insertSpace(benchmark::State& state)
{
    SoMFFloat field;
    field.setValues(numbers());
    for ([[maybe_unused]] auto turn : state) {
        field.insertSpace(Million / 2, 1);
        field.deleteValues(Million / 2, 1);
        benchmark::DoNotOptimize(field.getValues());
    }
}
BENCHMARK(insertSpace)->Unit(benchmark::kMicrosecond);

struct Listener {
    virtual ~Listener() = default;
    virtual void changed(int) = 0;
};
struct Counting : Listener {
    int calls = 0;
    void changed(int by) override { calls += by; }
};

void virtualCall(benchmark::State& state)
{
    Counting counting;
    Listener* listener = &counting;
    for ([[maybe_unused]] auto turn : state) {
        benchmark::DoNotOptimize(listener);
        listener->changed(1);
    }
}
BENCHMARK(virtualCall);

void writeAlone(benchmark::State& state)
{
    SoSFFloat field;
    float value = 0;
    for ([[maybe_unused]] auto turn : state)
        field.setValue(value += 1);
}
BENCHMARK(writeAlone);

void notifyPath(benchmark::State& state)
{
    auto* gallery = new SoFieldGallery;
    SoRef<SoNode> root(gallery);
    for (int i = 1; i < state.range(0); ++i) {
        auto* above = new SoSeparator;
        above->addChild(root.get());
        root = SoRef<SoNode>(above);
    }
    SoNodeSensor sensor;
    sensor.attach(root.get());
    float value = 0;
    for ([[maybe_unused]] auto turn : state)
        gallery->sfFloat.setValue(value += 1);
}
BENCHMARK(notifyPath)->Arg(1)->Arg(10)->Arg(100);

} // namespace

int main(int argc, char** argv)
{
    return bench::run(
        argc, argv,
        {
            {"text of 1,000,000 floats, to a to_chars loop", "textOutField", "textOutPlain",
             "aim: at most 1.3"},
            {"1,000,000 floats from text, to a from_chars loop", "textInField", "textInPlain",
             "aim: at most 1.3"},
            {"set one of 1,000,000 values, to one of 100, sensor attached", "setOneWithSensor/1000000",
             "setOneWithSensor/100", "aim: 1, independent of the size"},
            {"text of one of 1,000,000 values, to one of 100", "textOfOne/1000000", "textOfOne/100",
             "aim: 1, independent of the size"},
            {"insertSpace in the middle, to vector::insert", "insertSpace", "insertPlain",
             "aim: at most 1.1"},
            {"write of a field that nobody watches, to a virtual call", "writeAlone", "virtualCall", ""},
            {"write notified through a path of 10 nodes, to a virtual call", "notifyPath/10", "virtualCall",
             ""},
            {"the same, per node of the path from 10 to 100", "notifyPath/100", "notifyPath/10",
             "linear: 10"},
        });
}
