// What an editor of a single value costs, against plain widgets that do the same:
//
//   - selecting a field: from the signal to the shown editor, against building the same inputs and showing
//   the text;
//   - one live step of a slider: write, command, undo stack, sensor and refresh, against a bare slider, line
//   edit and
//     undo stack.
//
//     sf_editors [rounds]
#include "EdSFColorWidget.h"
#include "EdSFFloatWidget.h"
#include "EdSFInt32Widget.h"
#include "EdSFMatrixWidget.h"
#include "EdSFStringWidget.h"
#include "EdSFVec3fWidget.h"
#include "SpxFieldEditorDockWin.h"
#include "support/TestHost.h"

#include <xsg/fields/SoSFColor.h>
#include <xsg/fields/SoSFFloat.h>
#include <xsg/fields/SoSFInt32.h>
#include <xsg/fields/SoSFMatrix.h>

#include <QApplication>
#include <QCheckBox>
#include <QDockWidget>
#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
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
    explicit BareInputs(QWidget* parent, int lines = 1)
        : frame(new QFrame(parent))
    {
        auto* layout = new QHBoxLayout(frame);
        layout->addWidget(new QLabel("<p align=\"center\">Field</p>", frame));
        auto* check = new QCheckBox(frame);
        slider = new QSlider(Qt::Horizontal, frame);
        slider->setRange(0, 100);
        layout->addWidget(check);
        layout->addWidget(slider, 1);
        for (int i = 0; i < lines; ++i) {
            line = new QLineEdit(frame);
            layout->addWidget(line);
        }
        for (int i = 0; i < 2; ++i)
            layout->addWidget(new QPushButton(frame));
    }
    QFrame* frame;
    QSlider* slider = nullptr;
    QLineEdit* line = nullptr;
};

double bareSelection(QMainWindow& window, int rounds)
{
    QDockWidget dock;
    window.addDockWidget(Qt::RightDockWidgetArea, &dock);
    return microseconds(rounds, [&](int i) {
        delete dock.widget();
        BareInputs bare(nullptr);
        bare.line->setText(QString::number(i % 7));
        bare.slider->setValue(i % 7);
        dock.setWidget(bare.frame);
        dock.show();
        TestHost::pump();
    });
}

template <class Editor, class Field>
void compareSelection(const char* what, int rounds, const char* first, const char* second)
{
    UndoStackHost host;
    Editor editor(nullptr);
    SpxFieldEditorDockWin dock;
    editor.load();
    host.control({&editor});
    host.start(dock);
    host.window().resize(800, 300);
    host.window().show();
    Field fields[2];
    fields[0].set(first);
    fields[1].set(second);
    const double ours = microseconds(rounds, [&](int i) {
        host.select(&fields[i % 2]);
        TestHost::pump();
    });
    host.select(static_cast<SoField*>(nullptr));
    host.stop(dock);
    editor.unload();
    print(what, ours, bareSelection(host.window(), rounds));
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
    BareInputs bare(nullptr);
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
    compareSelection<EdSFFloatWidget, SoSFFloat>("select SFFloat", rounds, "1", "2");
    compareSelection<EdSFInt32Widget, SoSFInt32>("select SFInt32", rounds, "1", "2");
    compareSelection<EdSFVec3fWidget, SoSFVec3f>("select SFVec3f", rounds, "1 2 3", "4 5 6");
    compareSelection<EdSFColorWidget, SoSFColor>("select SFColor", rounds, "1 0 0", "0 1 0");
    compareSelection<EdSFStringWidget, SoSFString>("select SFString", rounds, "one", "two");
    compareSelection<EdSFMatrixWidget, SoSFMatrix>(
        "select SFMatrix", rounds, "1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1", "2 0 0 0 0 2 0 0 0 0 2 0 0 0 0 1");
    return 0;
}
