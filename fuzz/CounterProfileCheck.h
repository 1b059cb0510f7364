// SPDX-License-Identifier: MIT
#pragma once

#include "Check.h"

#include "CounterProfileFile.h"
#include "ProfileText.h"
#include "SoPerfCounterProfile.h"

#include <xsg/counters/SoPerfCounterManager.h>
#include <xsg/errors/SoDebugError.h>

#include <QBuffer>
#include <QDomDocument>

#include <memory>

namespace fuzz
{

/// What must hold whatever a counter-profile file has in it. The fuzzer and the test that replays its corpus
/// share this.
class CounterProfileCheck
{
public:
    /// Counters that would be computed from themselves are reported as errors, which are expected here.
    CounterProfileCheck()
        : m_callback(SoDebugError::getHandlerCallback())
        , m_data(SoDebugError::getHandlerData())
    {
        SoDebugError::setHandlerCallback(nullptr, nullptr);
    }
    ~CounterProfileCheck() { SoDebugError::setHandlerCallback(m_callback, m_data); }
    CounterProfileCheck(const CounterProfileCheck&) = delete;
    CounterProfileCheck& operator=(const CounterProfileCheck&) = delete;

    /// A file that is accepted is the same once it was written and read.
    void operator()(const std::uint8_t* data, std::size_t size)
    {
        checkTyped(QString(reinterpret_cast<const QChar*>(Input(data, data + size - size % 2).data()),
                           static_cast<int>(size / 2)));
        QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
        QDomDocument document;
        QString problem;
        if (!parse(bytes, document, problem))
            return;
        Content content(document);
        counterProfileFile::writeProfiles(document, content.bare());
        counterProfileFile::writeCustomCounters(document);
        removeCustomCounters();
        for (const auto& profile : content.profiles)
            counterProfileFile::writeView(document, *profile);
        QByteArray written = bytesOf(document);
        QDomDocument again;
        require(parse(written, again, problem), "a file that was written cannot be read: " +
                                                    problem.toStdString() + "\n" + written.toStdString());
        const Content same(again);
        removeCustomCounters();
        require(same.counters == content.counters, "a custom counter changes when written and read: " +
                                                       content.text() + "becomes " + same.text());
        require(same.lists() == content.lists(), "a profile changes when written and read");
    }

private:
    /// A text that a dialog would take is the same once it was written and read.
    static void checkTyped(const QString& text)
    {
        if (!profileText::listedNameRefusal(QString(), text).isEmpty())
            return;
        SoPerfCounterProfile profile(text);
        profile.getList()->append(text);
        profile.getView()->append(text);
        QDomDocument document;
        QBuffer nowhere;
        nowhere.open(QIODevice::WriteOnly);
        counterProfileFile::initDocument(&nowhere, document);
        counterProfileFile::writeProfiles(document, {&profile});
        QByteArray written = bytesOf(document);
        QDomDocument again;
        QString problem;
        require(parse(written, again, problem),
                "a text that was taken cannot be read: " + problem.toStdString());
        const Content same(again);
        const QStringList texts{text};
        require(same.lists() == QList<QStringList>{texts, texts, texts},
                "a text changes when written and read");
    }

    struct Content {
        explicit Content(const QDomDocument& document)
        {
            for (SoPerfCounterProfile* profile : counterProfileFile::readProfiles(document))
                profiles.emplace_back(profile);
            counterProfileFile::readCustomCounters(document);
            for (const SoPerfCounter* counter : SoPerfCounterManager::getInstance()->getCounters()) {
                if (counter->isCustom())
                    counters.push_back(textOf(*counter));
            }
        }
        static std::string textOf(const SoPerfCounter& counter)
        {
            std::string text = counter.getName().getString();
            for (const SbString& part : {counter.getTypeCode(), counter.getDescription(), counter.getModule(),
                                         counter.getStringLevel(), counter.getOperation()})
                text += '\n' + part.str();
            return text + '\n' + counter.getFirstParent().getString() + '\n' +
                   counter.getSecondParent().getString();
        }
        QList<SoPerfCounterProfile*> bare() const
        {
            QList<SoPerfCounterProfile*> all;
            for (const auto& profile : profiles)
                all.append(profile.get());
            return all;
        }
        std::string text() const
        {
            std::string all;
            for (const std::string& counter : counters)
                all += counter + '\n';
            return all;
        }
        QList<QStringList> lists() const
        {
            QList<QStringList> all;
            for (const auto& profile : profiles) {
                all.append({profile->getName()});
                all.append(*profile->getList());
                all.append(*profile->getView());
            }
            return all;
        }
        std::vector<std::unique_ptr<SoPerfCounterProfile>> profiles;
        std::vector<std::string> counters;
    };

    static bool parse(QByteArray& bytes, QDomDocument& document, QString& problem)
    {
        QBuffer buffer(&bytes);
        problem.clear();
        const bool accepted = counterProfileFile::parse(&buffer, document, problem);
        require(accepted == problem.isEmpty(), "a file must be accepted or refused with a reason");
        return accepted;
    }
    static QByteArray bytesOf(const QDomDocument& document)
    {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        counterProfileFile::writeDocument(&buffer, document);
        return buffer.data();
    }
    static void removeCustomCounters()
    {
        auto* registry = SoPerfCounterManager::getInstance();
        for (const SoPerfCounter* counter : registry->getCounters()) {
            if (counter->isCustom())
                registry->disableCounter(counter->getName());
        }
        registry->removeDisabledCounters();
    }

    SoErrorCB* m_callback;
    void* m_data;
};

} // namespace fuzz
