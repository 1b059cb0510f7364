// SPDX-License-Identifier: MIT
#pragma once

#include "handles/HandleEdit.h"
#include "handles/HandleGroup.h"
#include "viewport/ViewTool.h"

#include <QList>
#include <QObject>
#include <QPointer>

#include <vector>

namespace scopix
{

class HostServices;
class SceneStates;
class SceneView;

/// The handles of what is selected, in the view: dragged with the mouse, or by keys: X, Y or Z (with Shift
/// the plane across), a number or the arrows, Enter. Ctrl snaps, Shift is finer, Escape gives back. They are
/// where the last of several selected nodes is, and move all of them. Each drag is one step. What is locked
/// has none. GUI thread only.
class HandleTool : public QObject, public ViewTool
{
    Q_OBJECT

public:
    /// The services must outlive it.
    HandleTool(HostServices& services, SceneView& view);
    ~HandleTool() override;

    /// Tells what is locked; must outlive it. Null, as at first: nothing is.
    void setStates(SceneStates* states);
    void setMode(HandleMode mode);
    HandleMode getMode() const { return m_mode; }
    /// Along the world's axes, as at first, or along those of what is moved.
    void setOfWorld(bool on);
    bool isOfWorld() const { return m_ofWorld; }
    bool isDragging() const { return m_group.getDrag() != nullptr; }
    /// As they are on the screen now; empty where there are none.
    HandleShape getShape();
    /// Of what there are handles now, in the coordinates of the world.
    const HandleTarget* getTarget();
    /// How many nodes a drag changes now.
    int getTargetCount();

    bool mousePressed(QMouseEvent& event) override;
    bool mouseMoved(QMouseEvent& event) override;
    bool mouseReleased(QMouseEvent& event) override;
    bool mouseDoubleClicked(QMouseEvent& event) override;
    void mouseLeft() override;
    bool keyPressed(QKeyEvent& event) override;
    bool wantsKey(const QKeyEvent& event) override;
    void focusLost() override;
    void sceneChanged() override { m_isStale = true; }
    void paint(QPainter& painter, const ViewSight& sight) override;
    std::optional<QCursor> getCursor() const override;

signals:
    void modeChanged();
    void ofWorldChanged();
    /// What the handles act on, or why there are none; one sentence.
    void said(const QString& sentence);

private:
    enum class Held { Mouse, Keys };

    void selectionChanged();
    void stackMoved();
    void refresh();
    void sayWhatIsMoved();
    void beginDrags(HandlePart part);
    void apply(const HandleDrag::Amounts& amounts);
    void beginEdit();
    bool begin(HandlePart part, Held held, const QPointF& place);
    void constrain(HandlePart part);
    void nudge(double steps, int component);
    void pointTo(const QMouseEvent& event);
    bool type(const QKeyEvent& event);
    void show(const HandleDrag::Amounts& amounts);
    void followMouse(const QPointF& place, bool snaps);
    HandleDrag::Amounts typedAmounts() const;
    void keep();
    void giveBack();
    void end();
    void selectParts(const std::vector<std::shared_ptr<AddedTransform>>& added);
    void selectionMayHaveChanged();
    QString stepName() const;
    QString amountText() const;
    bool isIdleKey(const QKeyEvent& event) const;

    HostServices& m_services;
    SceneView& m_view;
    const QPointer<QObject> m_viewLives;
    HandleMode m_mode = HandleMode::Select;
    bool m_ofWorld = true;
    bool m_isStale = true; // what there are handles of may be another
    QPointer<SceneStates> m_states;
    QList<SoFieldContainer*> m_known; // what was selected; only compared
    HandleGroup m_group;              // what they move

    HandleEdit m_edit;
    Held m_held = Held::Mouse;
    bool m_isSelecting = false; // what moved, at its other place
    bool m_isPressed = false;   // and what the mouse does until its release is nobody else's
    HandlePart m_hovered = HandlePart::None;
    QPointF m_mouse;   // where it is
    QPointF m_place;   // where it would be, had Shift not made it slower
    QPointF m_pressed; // where it took hold
    bool m_snaps = false;
    QString m_typed; // numbers, with a space between them
    HandleDrag::Amounts m_amounts{};
};

} // namespace scopix
