// SPDX-License-Identifier: MIT
// The pictures of docs/start.md; with SCOPIX_PICTURES=FOLDER they are written there.
#include "GuidedWindow.h"

#include "palette/CommandPalette.h"
#include "preferences/PreferencesDialog.h"
#include "start/FilePictures.h"
#include "start/StartPage.h"
#include "start/Tour.h"

#include <support/Waiting.h>

#include <QAction>
#include <QLineEdit>

using namespace scopix;

namespace
{

class GuidancePictures : public GuidedWindow
{
protected:
    GuidancePictures() { window->resize(1100, 720); }
    static void keep(const char* name, QWidget& widget)
    {
        settle();
        if (auto* whole = qobject_cast<QMainWindow*>(&widget))
            whole->statusBar()->clearMessage(); // which names a folder of this machine
        const QImage picture = widget.grab().toImage();
        EXPECT_FALSE(picture.isNull());
        const QString folder = qEnvironmentVariable("SCOPIX_PICTURES");
        EXPECT_TRUE(folder.isEmpty() ||
                    picture.save(QStringLiteral("%1/%2.png").arg(folder, QLatin1String(name))));
    }
};

TEST_F(GuidancePictures, OfTheStartPage)
{
    window->enterInteractiveMode();
    for (const int sample : {3, 1}) {
        const QString file = StartPage::samples().value(sample);
        ASSERT_TRUE(open(file));
        window->getFiles().getRecent().add(file);
        EXPECT_TRUE(waitFor([&] { return !FilePictures().find(file).isNull(); }));
    }
    act("startPageAction")->trigger();
    keep("start-page", *window);
}

TEST_F(GuidancePictures, OfTheTour)
{
    window->enterInteractiveMode();
    act("tourAction")->trigger();
    keep("tour", *window);
}

TEST_F(GuidancePictures, OfThePalette)
{
    ASSERT_TRUE(window->selectField("Glass", "transparency"));
    CommandPalette& palette = window->getPalette().getPalette();
    palette.open();
    QTest::keyClicks(&palette.getLine(), "sa");
    keep("palette", palette);
}

TEST_F(GuidancePictures, OfThePreferences)
{
    window->enterInteractiveMode();
    window->getSettings().open(QStringLiteral("mouse"));
    keep("preferences", *window->findChild<PreferencesDialog*>());
}

} // namespace
