// SPDX-License-Identifier: MIT
// What the panel of a node costs, against plain widgets that do the same:
//
//   - selecting a node of 5, 50 and 500 fields, until it is shown, against making as many rows of the same
//     widgets as are visible, with their texts, below a title: what is not visible should cost nearly
//     nothing;
//   - one step of a drag on a number: write, sensor, refresh and picture, and the step of undo at the end of
//     the drag, against a bare slider with an undo step and a line of text.
#include "FloatStep.h"
#include "Ratios.h"

#include "panel/PanelEditor.h"
#include "panel/PinnedPanels.h"
#include "support/TestHost.h"

#include <xsg/fields/SoSFFloat.h>
#include <xsg/nodes/base/SoNode.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/types/SoTypedImpl.h>

#include <QAbstractScrollArea>
#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScrollBar>
#include <QSlider>
#include <QToolButton>
#include <QUndoStack>
#include <QVBoxLayout>

namespace
{

const QSize PanelSize(340, 600);

/// A node of as many numbers as wanted.
class ManyNumbers : public SoTyped<ManyNumbers, SoNode>
{
public:
    static constexpr const char* ClassName = "ManyNumbers";

    explicit ManyNumbers(int count = 1)
    {
        for (int i = 0; i < count; ++i)
            m_numbers.push_back(std::make_unique<SoSFFloat>(this, ("number" + std::to_string(i)).c_str(),
                                                            static_cast<float>(i) / 4));
    }
    SoSFFloat& at(std::size_t i) { return *m_numbers[i]; }

private:
    std::vector<std::unique_ptr<SoSFFloat>> m_numbers;
};

} // namespace

template class SoTyped<ManyNumbers, SoNode>;

namespace
{

struct Panel {
    Panel()
    {
        host.edit(editor, first.get());
        editor.getWidget()->resize(PanelSize);
        TestHost::pump();
    }
    ~Panel() { host.release(editor); }
    /// The rows that are in view.
    QList<QWidget*> rows() const
    {
        QList<QWidget*> visible;
        for (auto* row : editor.getWidget()->findChildren<QWidget*>(QStringLiteral("row"))) {
            if (row->isVisible())
                visible += row;
        }
        return visible;
    }

    TestHost host;
    SoRef<SoMaterial> first{new SoMaterial};
    inspector::PinnedPanels pins;
    inspector::PanelEditor editor{pins};
};

void select(benchmark::State& state)
{
    Panel panel;
    const SoRef<ManyNumbers> nodes[] = {SoRef<ManyNumbers>(new ManyNumbers(int(state.range(0)))),
                                        SoRef<ManyNumbers>(new ManyNumbers(int(state.range(0))))};
    nodes[0]->setName("One");
    nodes[1]->setName("Another");
    int next = 0;
    for (auto _ : state) {
        next = 1 - next;
        panel.host.edit(panel.editor, nodes[next].get());
        TestHost::pump();
    }
}

/// A title and rows of a mark, a name and an input, with nothing behind them.
class BareRows : public QWidget
{
public:
    explicit BareRows(const QList<QWidget*>& rows)
    {
        for (QWidget* row : rows)
            m_places += {row->geometry(), row->accessibleName()};
        m_area->setFrameShape(QFrame::NoFrame);
        m_title->setTextFormat(Qt::RichText);
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(m_title);
        layout->addWidget(new QLineEdit);
        layout->addWidget(m_area, 1);
        resize(PanelSize);
    }
    void make(int number)
    {
        m_title->setText(QStringLiteral("<b>%1</b> ManyNumbers").arg(number % 2 ? "One" : "Another"));
        qDeleteAll(m_rows);
        m_rows.clear();
        for (const Place& place : qAsConst(m_places)) {
            QWidget* row = makeRow(place.name, number);
            row->setGeometry(place.rect);
            row->show();
            m_rows += row;
        }
    }

private:
    struct Place {
        QRect rect;
        QString name;
    };
    QWidget* makeRow(const QString& name, int number)
    {
        auto* row = new QWidget(m_area->viewport());
        row->setAccessibleName(name);
        auto* mark = new QToolButton(row);
        mark->setToolTip(QStringLiteral("The default."));
        auto* caption = new QLabel(name, row);
        auto* editor = new QWidget(row);
        auto* grid = new QGridLayout(editor);
        grid->setContentsMargins(0, 0, 0, 0);
        auto* input = new QLineEdit(editor);
        input->setAccessibleName(name);
        input->setText(QString::number(number));
        grid->addWidget(input, 0, 0);
        mark->setGeometry(0, 0, 18, 24);
        caption->setGeometry(20, 0, 110, 24);
        editor->setGeometry(132, 0, 190, 24);
        return row;
    }

    QLabel* m_title = new QLabel;
    QAbstractScrollArea* m_area = new QAbstractScrollArea;
    QList<Place> m_places;
    QList<QWidget*> m_rows;
};

void selectBare(benchmark::State& state)
{
    Panel panel;
    const SoRef<ManyNumbers> node(new ManyNumbers(int(state.range(0))));
    panel.host.edit(panel.editor, node.get());
    TestHost::pump();
    BareRows bare(panel.rows());
    bare.show();
    int number = 0;
    for (auto _ : state) {
        bare.make(++number);
        TestHost::pump();
    }
}

void sendMouse(QWidget& to, QEvent::Type type, const QPoint& at)
{
    const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const auto buttons = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, at, to.mapToGlobal(at), button, buttons, Qt::NoModifier);
    QApplication::sendEvent(&to, &event);
}

constexpr int StepsOfADrag = 100;

void dragStep(benchmark::State& state)
{
    Panel panel;
    const SoRef<ManyNumbers> node(new ManyNumbers(5));
    panel.host.edit(panel.editor, node.get());
    TestHost::pump();
    auto* input = panel.rows().at(2)->findChild<QLineEdit*>();
    const QPoint start = input->rect().center();
    int step = StepsOfADrag;
    for (auto _ : state) {
        if (step == StepsOfADrag) {
            state.PauseTiming();
            panel.host.clearUndo();
            sendMouse(*input, QEvent::MouseButtonPress, start);
            sendMouse(*input, QEvent::MouseMove, start + QPoint(QApplication::startDragDistance(), 0));
            step = 0;
            state.ResumeTiming();
        }
        sendMouse(*input, QEvent::MouseMove, start + QPoint(QApplication::startDragDistance() + ++step, 0));
        if (step == StepsOfADrag)
            sendMouse(*input, QEvent::MouseButtonRelease, start);
        TestHost::pump();
    }
    if (step != StepsOfADrag)
        sendMouse(*input, QEvent::MouseButtonRelease, start);
    if (node->at(2).isDefault())
        state.SkipWithError("the drag changed nothing");
}

void bareDragStep(benchmark::State& state)
{
    float value = 0;
    QUndoStack stack;
    QWidget frame;
    auto* layout = new QVBoxLayout(&frame);
    auto* slider = new QSlider(Qt::Horizontal);
    auto* line = new QLineEdit;
    slider->setRange(0, 1000);
    layout->addWidget(slider);
    layout->addWidget(line);
    frame.resize(PanelSize.width(), 60);
    frame.show();
    TestHost::pump();
    QObject::connect(slider, &QSlider::valueChanged, [&](int position) {
        stack.push(new bench::FloatStep(value, static_cast<float>(position) / 10));
        line->setText(QString::number(static_cast<double>(value)));
    });
    QPoint at(8, slider->height() / 2);
    sendMouse(*slider, QEvent::MouseButtonPress, at);
    int step = 0;
    for (auto _ : state) {
        step = (step + 1) % 200;
        sendMouse(*slider, QEvent::MouseMove, at + QPoint(step, 0));
        TestHost::pump();
    }
    sendMouse(*slider, QEvent::MouseButtonRelease, at);
    if (stack.count() == 0)
        state.SkipWithError("the drag changed nothing");
}

std::string at(const char* name, int size)
{
    return name + ('/' + std::to_string(size));
}

std::vector<bench::Ratio> ratios()
{
    return {
        {"select a node of 5 fields / bare rows", at("select", 5), at("selectBare", 5), "aim: at most 1.3"},
        {"select a node of 50 fields / bare rows that are visible", at("select", 50), at("selectBare", 50),
         "aim: at most 1.3"},
        {"select a node of 500 fields / bare rows that are visible", at("select", 500), at("selectBare", 500),
         "aim: at most 2"},
        {"one step of a drag / a bare slider with undo", "dragStep", "bareDragStep", "aim: at most 1.2"},
    };
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    for (const int size : {5, 50, 500}) {
        benchmark::RegisterBenchmark("select", select)
            ->Arg(size)
            ->Unit(benchmark::kMicrosecond)
            ->MinTime(0.1);
        benchmark::RegisterBenchmark("selectBare", selectBare)
            ->Arg(size)
            ->Unit(benchmark::kMicrosecond)
            ->MinTime(0.1);
    }
    benchmark::RegisterBenchmark("dragStep", dragStep)->Unit(benchmark::kMicrosecond)->MinTime(0.1);
    benchmark::RegisterBenchmark("bareDragStep", bareDragStep)->Unit(benchmark::kMicrosecond)->MinTime(0.1);
    return bench::run(argc, argv, ratios());
}
