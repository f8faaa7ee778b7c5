// No test may come upon a text for people that the catalogues lack.
#include "support/catalogue.h"

#include <QCoreApplication>
#include <QTranslator>

#include <gtest/gtest.h>

#include <memory>
#include <mutex>

namespace kelvo {
namespace {

/// Keeps what is looked up, on any thread, and translates nothing.
class Listener final : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char*, int) const override {
        const std::lock_guard lock(fMutex);
        fAsked.emplace(QString::fromUtf8(context), QString::fromUtf8(source));
        return {};
    }
    std::set<Asked> asked() const {
        const std::lock_guard lock(fMutex);
        return fAsked;
    }

private:
    mutable std::mutex fMutex;
    mutable std::set<Asked> fAsked;
};

class CatalogueWatch final : public ::testing::EmptyTestEventListener {
    void OnTestStart(const ::testing::TestInfo&) override {
        fListener = std::make_unique<Listener>();
        QCoreApplication::installTranslator(fListener.get());
    }
    void OnTestEnd(const ::testing::TestInfo&) override {
        QCoreApplication::removeTranslator(fListener.get());
        for (const auto& [context, source] : unknownAmong(fListener->asked()))
            ADD_FAILURE() << "no catalogue has, in " << qPrintable(context) << ": "
                          << qPrintable(source);
        fListener.reset();
    }

    std::unique_ptr<Listener> fListener;
};

[[maybe_unused]] const bool cWatches = [] {
    ::testing::UnitTest::GetInstance()->listeners().Append(new CatalogueWatch);
    return true;
}();

} // namespace
} // namespace kelvo
