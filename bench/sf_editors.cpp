// SPDX-License-Identifier: MIT
// What an editor of a single value costs, against plain widgets that do the same:
//
//   - selecting a field of each kind: from the signal to the shown editor, against building the same inputs
//   and
//     showing the same texts;
//   - one live step of a slider: write, command, undo stack, sensor and refresh, against a bare slider, line
//     edit and undo stack.
//
//     sf_editors [rounds [type]]
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
#include <QElapsedTimer>
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

// The median of several runs, in microseconds for each round.
double microseconds(int rounds, const std::function<void(int)>& work)
{
    std::vector<double> runs;
    for (int run = 0; run < 7; ++run) {
        QElapsedTimer clock;
        clock.start();
        for (int i = 0; i < rounds; ++i)
            work(i);
        runs.push_back(double(clock.nsecsElapsed()) / 1000.0 / rounds);
    }
    std::sort(runs.begin(), runs.end());
    return runs[runs.size() / 2];
}

void print(const char* what, double ours, double bare)
{
    std::printf("%-34s %8.1f us   bare %8.1f us   ratio %.2f\n", what, ours, bare, ours / bare);
}

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
    // A box with a name stands for a bit of one field and is built anew with the next.
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

// Takes the inputs out of a dock and shows them there again with other values, as a selection does.
double bareSelection(QMainWindow& window, BareCopy& copy, int rounds)
{
    QDockWidget dock;
    window.addDockWidget(Qt::RightDockWidgetArea, &dock);
    return microseconds(rounds, [&](int i) {
        dock.setWidget(nullptr);
        copy.frame()->setParent(nullptr);
        dock.hide();
        copy.show(i % 2);
        dock.setWidget(copy.frame());
        copy.frame()->show();
        dock.show();
        TestHost::pump();
    });
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

// All editors stand ready, and the dock finds the one for the field.
void compareSelections(int rounds, const std::string& only)
{
    UndoStackHost host;
    const Editors editors = allEditors();
    QList<SpxExtension*> extensions;
    for (const auto& editor : editors) {
        editor->load();
        extensions << editor.get();
    }
    SpxFieldEditorDockWin dock;
    host.control(extensions);
    host.start(dock);
    host.window().resize(800, 300);
    host.window().show();
    const Node nodes[2];
    for (const EditorRow& row : editorRows()) {
        if (row.isInGrid() || (!only.empty() && only != row.type))
            continue;
        SoField* fields[] = {nodes[0].field(row.type), nodes[1].field(row.type)};
        fields[0]->set(row.values[0].c_str());
        fields[1]->set(row.values[1].c_str());
        const double ours = microseconds(rounds, [&](int i) {
            host.select(fields[i % 2]);
            TestHost::pump();
        });
        BareCopy copy(*host.window().findChild<QDockWidget*>()->widget());
        host.select(static_cast<SoField*>(nullptr));
        const std::string what = std::string("select ") + row.type;
        print(what.c_str(), ours, bareSelection(host.window(), copy, rounds));
    }
    host.stop(dock);
    for (const auto& editor : editors)
        editor->unload();
}

double liveStep(int rounds)
{
    UndoStackHost host;
    EdSFFloatWidget editor(nullptr);
    SoSFFloat field;
    host.edit(editor, &field);
    editor.getWidget()->resize(420, 40);
    auto* slider = editor.getWidget()->findChild<QSlider*>();
    const double time = microseconds(rounds, [&](int i) {
        slider->setValue(i % 100);
        TestHost::pump();
    });
    host.release(editor);
    return time;
}

double bareStep(int rounds)
{
    class Step : public QUndoCommand
    {
    public:
        Step(float& value, float next)
            : m_value(value)
            , m_before(value)
            , m_next(next)
        {
        }
        void redo() override { m_value = m_next; }
        void undo() override { m_value = m_before; }

    private:
        float& m_value;
        float m_before;
        float m_next;
    };
    float value = 0;
    QUndoStack stack;
    BareInputs bare;
    bare.frame->resize(420, 40);
    bare.frame->show();
    QObject::connect(bare.slider, &QSlider::valueChanged, [&](int position) {
        stack.push(new Step(value, float(position) / 10));
        bare.line->setText(QString::number(double(value), 'f', 6));
    });
    const double time = microseconds(rounds, [&](int i) {
        bare.slider->setValue(i % 100);
        TestHost::pump();
    });
    delete bare.frame;
    return time;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const int rounds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 200;
    const double ours = liveStep(rounds);
    print("one live step of a slider", ours, bareStep(rounds));
    compareSelections(rounds, argc > 2 ? argv[2] : "");
    return 0;
}
