// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/Inspector/InspectorSession.h"

#include <QComboBox>
#include <QToolButton>

/// The panel of the real host, with a material in it.
class Panel : public testing::Test
{
protected:
    Panel() { session.selectNode(session.material.get()); }

    int steps() { return session.stack().count(); }
    QString undoText() { return session.stack().undoText(); }
    void chooseForm(const char* field, int form)
    {
        auto* forms = session.in<QComboBox>(field, "form");
        forms->setFocus();
        QTest::keyClick(forms, Qt::Key_Home);
        for (int i = 0; i < form; ++i)
            QTest::keyClick(forms, Qt::Key_Down);
        session.settle();
    }
    void chooseColorForm(const char* field, int form)
    {
        session.click(session.in<QToolButton>(field, "form"));
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(menu);
        menu->setActiveAction(menu->actions()[form]);
        QTest::keyClick(menu, Qt::Key_Return);
        session.settle();
    }

    InspectorSession session;
    SoMaterial& material = *session.material;
};
