// SPDX-License-Identifier: MIT
// Scenes are opened, edited, shown and closed at random.
#include "SceneTabsFixture.h"

#include <map>
#include <random>

namespace
{

int fromEnvironment(const char* name, int otherwise)
{
    bool isSet = false;
    const int value = qEnvironmentVariableIntValue(name, &isSet);
    return isSet ? value : otherwise;
}

// What each scene is known to hold, by its file.
struct Known {
    std::string first;
    std::string now;
};

class TabsWalk : public Tabs
{
protected:
    int below(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }
    QString front() { return title(); }

    void openAny()
    {
        const QString name(QChar('a' + below(4)));
        openInTab(makeFileOnce(name));
        if (m_known.count(title()) == 0)
            m_known[title()] = {text(), text()};
    }
    QString makeFileOnce(const QString& name)
    {
        const QString path = home.filePath(name + ".xsg");
        return QFileInfo::exists(path) ? path : makeFile(name);
    }
    void selectAny()
    {
        QModelIndex index = tree().getModel().index(0, 0);
        for (int depth = 1 + below(2); depth > 0 && tree().getModel().rowCount(index) > 0; --depth) {
            tree().expand(index);
            index = tree().getModel().index(below(tree().getModel().rowCount(index)), 0, index);
        }
        clickRow(index);
    }
    void editAny()
    {
        selectAny();
        switch (below(4)) {
        case 0:
            return key(Qt::Key_D, Qt::ControlModifier);
        case 1:
            return key(Qt::Key_Delete, {});
        case 2:
            return key(Qt::Key_G, Qt::ControlModifier);
        default:
            key(Qt::Key_F2, {});
            if (QWidget* line = tree().viewport()->findChild<QLineEdit*>()) {
                QTest::keyClicks(line, "name");
                QTest::keyClicks(line, QString::number(below(100)));
                if (below(2) == 0)
                    QTest::keyClick(line, Qt::Key_Return); // else it is left to what comes next
            }
        }
    }
    void switchTab()
    {
        if (tabs().count() < 2)
            return;
        if (below(2) == 0)
            clickTab(below(tabs().count()));
        else
            key(Qt::Key_Tab, below(2) == 0 ? Qt::ControlModifier : Qt::ControlModifier | Qt::ShiftModifier);
    }
    void moveTab()
    {
        if (tabs().count() > 1)
            dragTab(below(tabs().count()), below(tabs().count()));
    }
    void closeTab()
    {
        if (tabs().count() < 3)
            return;
        m_known.erase(title());
        const Answers discard("Discard");
        key(Qt::Key_F4, Qt::ControlModifier);
    }
    void act()
    {
        switch (below(13)) {
        case 12:
            return moveTab();
        case 0:
            return openAny();
        case 1:
            return closeTab();
        case 2:
        case 3:
        case 4:
            return switchTab();
        case 5:
        case 6:
            return key(Qt::Key_Z, Qt::ControlModifier);
        case 7:
            return key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        default:
            return editAny();
        }
    }
    // The acts on what was in front before them may change only that.
    void check(const QString& acted)
    {
        for (const OpenScene* each : scenes().getAll()) {
            const SceneDocument& document = each->getDocument();
            const std::string now = SoSceneFile::writeText(document.getRoot());
            Known& known = m_known[document.getTitle()];
            if (document.getTitle() != acted && document.getTitle() != title()) {
                ASSERT_EQ(now, known.now) << qPrintable(document.getTitle());
            }
            known.now = now;
            EXPECT_TRUE(now == known.first || document.isModified())
                << qPrintable(document.getTitle()) << "\n"
                << known.first << "\n"
                << now;
        }
    }

    std::map<QString, Known> m_known;
    std::mt19937 m_random{unsigned(fromEnvironment("SCOPIX_WALK_SEED", 7))};
};

} // namespace

TEST_F(TabsWalk, NoStepLandsInAnotherScene)
{
    openAny();
    const int steps = fromEnvironment("SCOPIX_WALK_STEPS", 60);
    for (int i = 0; i < steps; ++i) {
        const QString before = title();
        act();
        check(before);
        if (HasFatalFailure() || HasNonfatalFailure())
            FAIL() << "at step " << i;
    }
    for (int i = 0; i < static_cast<int>(scenes().getAll().size()); ++i) {
        clickTab(i);
        for (int more = 0; more < 10000 && program->services.undoStack().canUndo(); ++more)
            key(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(text(), m_known[title()].first) << qPrintable(title());
    }
}
