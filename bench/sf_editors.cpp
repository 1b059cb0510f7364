// SPDX-License-Identifier: MIT
// What an editor of a single value costs, against plain widgets that do the same:
//
//   - selecting a field of each kind: from the signal to the shown editor, against building the same inputs
//   and
//     showing the same texts;
//   - one live step of a slider: write, command, undo stack, sensor and refresh, against a bare slider, line
//     edit and undo stack.
#include "FloatStep.h"
#include "Ratios.h"

#include "EdSFBitMaskWidget.h"
#include "EdSFBoolWidget.h"
#include "EdSFBox3sWidget.h"
#include "EdSFColorWidget.h"
#include "EdSFDoubleWidget.h"
#include "EdSFEnumWidget.h"
#include "EdSFFilePathStringWidget.h"
#include "EdSFFloatWidget.h"
#include "EdSFImageWidget.h"
#include "EdSFInt32Widget.h"
#include "EdSFLineWidget.h"
#include "EdSFMatrixWidget.h"
#include "EdSFNameWidget.h"
#include "EdSFPlaneWidget.h"
#include "EdSFRotationWidget.h"
#include "EdSFShortWidget.h"
#include "EdSFStringWidget.h"
#include "EdSFUInt32Widget.h"
#include "EdSFUShortWidget.h"
#include "EdSFVec2fWidget.h"
#include "EdSFVec2i32Widget.h"
#include "EdSFVec2sWidget.h"
#include "EdSFVec3fWidget.h"
#include "EdSFVec4fWidget.h"
#include "SpxFieldEditorDockWin.h"
#include "src/sfwidgets/EditorRows.h"
#include "support/TestHost.h"

#include <xsg/core/SoFieldContainer.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QUndoStack>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <vector>

namespace
{

// A host whose undo history is the toolkit's.
class UndoStackHost : public TestHost
{
public:
    void executeCommand(SpxCommand* command) override { m_stack.push(new Step(command)); }

private:
    class Step : public QUndoCommand
    {
    public:
        explicit Step(SpxCommand* command)
            : m_command(command)
        {
        }
        void redo() override
        {
            if (m_executed)
                m_command->redo();
            else
                m_command->execute();
            m_executed = true;
        }
        void undo() override { m_command->undo(); }

    private:
        std::unique_ptr<SpxCommand> m_command;
        bool m_executed = false;
    };
    QUndoStack m_stack;
};

// The inputs of a slider editor without anything behind them.
struct BareInputs {
    BareInputs()
        : frame(new QFrame)
    {
        auto* layout = new QHBoxLayout(frame);
        layout->addWidget(new QLabel("<p align=\"center\">Field</p>", frame));
        auto* check = new QCheckBox(frame);
        slider = new QSlider(Qt::Horizontal, frame);
        slider->setRange(0, 100);
        layout->addWidget(check);
        layout->addWidget(slider, 1);
        line = new QLineEdit(frame);
        layout->addWidget(line);
        for (int i = 0; i < 2; ++i)
            layout->addWidget(new QPushButton(frame));
    }
    QFrame* frame;
    QSlider* slider = nullptr;
    QLineEdit* line = nullptr;
};

// The same inputs as an editor, in the same rows, with nothing behind them.
class BareCopy
{
public:
    explicit BareCopy(const QWidget& editor)
        : m_frame(new QFrame)
    {
        copy<QLabel>(editor);
        copy<QCheckBox>(editor);
        copy<QSlider>(editor);
        copy<QLineEdit>(editor);
        copy<QSpinBox>(editor);
        copy<QComboBox>(editor);
        copy<QPushButton>(editor);
        arrange();
    }
    QFrame* frame() const { return m_frame; }
    void show(int number)
    {
        for (auto& input : m_inputs)
            input(number);
    }

private:
    template <class Widget>
    void copy(const QWidget& editor)
    {
        for (const Widget* original : editor.findChildren<Widget*>()) {
            const bool isInner = original->objectName().startsWith("qt_");
            if (isInner || !original->isVisible())
                continue;
            auto* widget = new Widget(m_frame);
            m_places.push_back({QRect(original->mapTo(&editor, QPoint()), original->size()), widget});
            start(*widget, *original);
            m_inputs.push_back([widget](int number) mutable {
                renew(widget);
                set(*widget, number);
            });
        }
    }
    static void renew(QWidget*) {}
    // A box with a name stands for a bit of one field and is created again with the next.
    static void renew(QCheckBox*& box)
    {
        if (box->text().isEmpty())
            return;
        auto* next = new QCheckBox(box->text(), box->parentWidget());
        delete box->parentWidget()->layout()->replaceWidget(box, next);
        delete box;
        box = next;
    }
    // A row holds what begins above the middle of its first input.
    void arrange()
    {
        auto* rows = new QVBoxLayout(m_frame);
        std::sort(m_places.begin(), m_places.end(),
                  [](const Place& a, const Place& b) { return a.rect.top() < b.rect.top(); });
        for (auto first = m_places.begin(); first != m_places.end();) {
            const int middle = first->rect.center().y();
            const auto next = std::find_if(first, m_places.end(),
                                           [&](const Place& place) { return place.rect.top() >= middle; });
            std::sort(first, next,
                      [](const Place& a, const Place& b) { return a.rect.left() < b.rect.left(); });
            auto* row = new QHBoxLayout;
            rows->addLayout(row);
            for (; first != next; ++first)
                row->addWidget(first->widget);
        }
    }
    static void start(QLabel& label, const QLabel& original) { label.setText(original.text()); }
    static void start(QSlider& slider, const QSlider&) { slider.setOrientation(Qt::Horizontal); }
    static void start(QComboBox& box, const QComboBox&) { box.addItems({"one", "two", "three", "four"}); }
    static void start(QAbstractButton& button, const QAbstractButton& original)
    {
        button.setText(original.text());
        button.setIcon(original.icon());
        button.setIconSize(original.iconSize());
    }
    static void start(QLineEdit&, const QLineEdit&) {}
    static void start(QSpinBox&, const QSpinBox&) {}
    static void set(QLabel&, int) {}
    static void set(QPushButton&, int) {}
    static void set(QCheckBox& box, int number) { box.setChecked(number == 0); }
    static void set(QSlider& slider, int number) { slider.setValue(number); }
    static void set(QLineEdit& line, int number) { line.setText(QString::number(number)); }
    static void set(QSpinBox& box, int number) { box.setValue(number); }
    static void set(QComboBox& box, int number) { box.setCurrentIndex(number); }

    struct Place {
        QRect rect; // in the editor
        QWidget* widget;
    };

    QFrame* m_frame; // the dock's
    std::vector<Place> m_places;
    std::vector<std::function<void(int)>> m_inputs;
};

/// Takes the inputs out of a dock and shows them there again with other values, as a selection does.
void selectBare(benchmark::State& state, QMainWindow& window, BareCopy& copy)
{
    QDockWidget dock;
    window.addDockWidget(Qt::RightDockWidgetArea, &dock);
    int number = 0;
    for (auto _ : state) {
        number = 1 - number;
        dock.setWidget(nullptr);
        copy.frame()->setParent(nullptr);
        dock.hide();
        copy.show(number);
        dock.setWidget(copy.frame());
        copy.frame()->show();
        dock.show();
        TestHost::pump();
    }
}

using Editors = std::vector<std::unique_ptr<SpxEditor>>;

template <class... Classes>
Editors make()
{
    Editors editors;
    (editors.push_back(std::make_unique<Classes>()), ...);
    return editors;
}

Editors allEditors()
{
    return make<EdSFBitMaskWidget, EdSFBoolWidget, EdSFBox3sWidget, EdSFColorWidget, EdSFEnumWidget,
                EdSFDoubleWidget, EdSFFilePathStringWidget, EdSFFloatWidget, EdSFImageWidget, EdSFInt32Widget,
                EdSFLineWidget, EdSFMatrixWidget, EdSFNameWidget, EdSFPlaneWidget, EdSFRotationWidget,
                EdSFShortWidget, EdSFStringWidget, EdSFUInt32Widget, EdSFUShortWidget, EdSFVec2fWidget,
                EdSFVec2i32Widget, EdSFVec2sWidget, EdSFVec3fWidget, EdSFVec4fWidget>();
}

// A node with a field of every type.
class Node
{
public:
    SoField* field(const char* type) const
    {
        const SoFieldData* data = m_node->getFieldData();
        for (int i = 0; SoField* field = data->getField(m_node.get(), i); ++i) {
            if (field->getTypeId().getName() == SbName(type))
                return field;
        }
        std::fprintf(stderr, "no field of type %s\n", type);
        std::exit(1);
    }

private:
    SoRef<SoFieldContainer> m_node{
        dynamic_cast<SoFieldContainer*>(SoType::fromName("FieldGallery").createInstance())};
};

/// All editors stand ready, and the dock finds the one for the field.
class Selections
{
public:
    Selections()
    {
        QList<SpxExtension*> extensions;
        for (const auto& editor : m_editors) {
            editor->load();
            extensions << editor.get();
        }
        m_host.control(extensions);
        m_host.start(m_dock);
        m_host.window().resize(800, 300);
        m_host.window().show();
    }
    ~Selections()
    {
        m_host.stop(m_dock);
        for (const auto& editor : m_editors)
            editor->unload();
    }
    void measure(benchmark::State& state, const EditorRow& row)
    {
        SoField* fields[] = {fieldOf(0, row), fieldOf(1, row)};
        int next = 0;
        for (auto _ : state) {
            next = 1 - next;
            m_host.select(fields[next]);
            TestHost::pump();
        }
    }
    void measureBare(benchmark::State& state, const EditorRow& row)
    {
        m_host.select(fieldOf(0, row));
        TestHost::pump();
        BareCopy copy(*m_host.window().findChild<QDockWidget*>()->widget());
        m_host.select(static_cast<SoField*>(nullptr));
        selectBare(state, m_host.window(), copy);
    }

private:
    SoField* fieldOf(int node, const EditorRow& row) const
    {
        SoField* field = m_nodes[node].field(row.type);
        field->set(row.values[std::size_t(node)].c_str());
        return field;
    }

    UndoStackHost m_host;
    const Editors m_editors = allEditors();
    SpxFieldEditorDockWin m_dock;
    const Node m_nodes[2];
};

void liveStep(benchmark::State& state)
{
    UndoStackHost host;
    EdSFFloatWidget editor(nullptr);
    SoSFFloat field;
    host.edit(editor, &field);
    editor.getWidget()->resize(420, 40);
    auto* slider = editor.getWidget()->findChild<QSlider*>();
    int position = 0;
    for (auto _ : state) {
        slider->setValue(++position % 100);
        TestHost::pump();
    }
    host.release(editor);
}

void bareLiveStep(benchmark::State& state)
{
    float value = 0;
    QUndoStack stack;
    BareInputs bare;
    bare.frame->resize(420, 40);
    bare.frame->show();
    QObject::connect(bare.slider, &QSlider::valueChanged, [&](int position) {
        stack.push(new bench::FloatStep(value, float(position) / 10));
        bare.line->setText(QString::number(double(value), 'f', 6));
    });
    int position = 0;
    for (auto _ : state) {
        bare.slider->setValue(++position % 100);
        TestHost::pump();
    }
    delete bare.frame;
}

void add(const std::string& name, const std::function<void(benchmark::State&)>& measure)
{
    benchmark::RegisterBenchmark(name.c_str(), measure)->Unit(benchmark::kMicrosecond)->MinTime(0.05);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    std::vector<bench::Ratio> ratios{
        {"one live step of a slider / of bare widgets", "liveStep", "bareLiveStep", ""}};
    add("liveStep", liveStep);
    add("bareLiveStep", bareLiveStep);
    for (const EditorRow& row : editorRows()) {
        if (row.isInGrid())
            continue;
        const std::string name = std::string("select ") + row.type;
        add(name, [&row](benchmark::State& state) { Selections().measure(state, row); });
        add("bare " + name, [&row](benchmark::State& state) { Selections().measureBare(state, row); });
        ratios.push_back({row.type, name, "bare " + name, "of selecting bare widgets"});
    }
    return bench::run(argc, argv, ratios);
}
