// SPDX-License-Identifier: MIT
// The program that reads a model for the host, in a process of its own: scopix-read-model MODEL RESULT.
// Prints how far it is, one line for each percent, and writes the model, or why there is none, to the file
// RESULT.
#include "model/ModelFile.h"
#include "model/TranslatedSentence.h"
#include "reader/MemoryLimit.h"
#include "reader/ModelReader.h"

#include <xsg/errors/SoDebugError.h>

#include <QCoreApplication>
#include <QFile>
#include <QTranslator>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace
{

constexpr rlim_t MostSeconds = 1200; // of processor time

void limit(int resource, rlim_t most)
{
    const rlimit soft{most, most + 10}; // at the soft one the signal shows which limit it was
    setrlimit(resource, &soft);
}

// A bad file may ask for anything. What it cannot have is an error that the reader survives or dies of,
// alone.
void limitItself(const QString& path)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL); // nobody waits for the model any more
    limit(RLIMIT_CORE, 0);
    limit(RLIMIT_CPU, MostSeconds);
    scopix::limitMemoryFor(path);
}

/// What it says is shown by the host, in whose language it says it.
class Texts : public QTranslator
{
public:
    QString translate(const char* /*context*/, const char* source, const char* comment, int n) const override
    {
        return QTranslator::translate("Scopix", source, comment, n); // the one context of the catalogue
    }
};

// In the words in which the host says it.
void print(const SoError* error, void* /*data*/)
{
    std::fprintf(stderr, "scopix: %s\n", scopix::translated(error->getSentence()).toUtf8().constData());
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv); // finds the plug-ins that read pictures
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        std::fputs("scopix-read-model MODEL RESULT: reads a model for scopix.\n", stderr);
        return 2;
    }
    Texts texts;
    if (texts.load(QStringLiteral(":/i18n/ModelReader_%1.qm").arg(qEnvironmentVariable("SCOPIX_LANGUAGE"))))
        QCoreApplication::installTranslator(&texts);
    SoDebugError::setHandlerCallback(print, nullptr);
    limitItself(arguments[1]);
    int told = 0;
    const scopix::ModelReadResult model = scopix::readModel(arguments[1], [&](float done) {
        const int percent = static_cast<int>(100 * done);
        if (percent != told) {
            std::printf("%d\n", percent);
            std::fflush(stdout);
        }
        told = percent;
    });
    QFile result(arguments[2]);
    const bool written =
        result.open(QIODevice::WriteOnly) && scopix::writeModelFile(model, result) && result.flush();
    std::_Exit(written ? 0 : 1); // the system frees all memory at once
}
