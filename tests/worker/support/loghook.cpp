#include "tests/worker/support/loghook.h"

#include <mutex>
#include <utility>

namespace {

std::mutex g_hookMutex;
QString g_text;
std::function<void()> g_action;
QtMessageHandler g_previous = nullptr;

std::function<void()> takeAction(const QString &text)
{
    const std::lock_guard<std::mutex> lock(g_hookMutex);
    return text == g_text ? std::exchange(g_action, nullptr) : nullptr;
}

void handle(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    g_previous(type, context, text);
    if (const auto action = takeAction(text))
        action();
}

} // namespace

LogHook::LogHook(const QString &text, const std::function<void()> &action)
{
    const std::lock_guard<std::mutex> lock(g_hookMutex);
    g_text = text;
    g_action = action;
    g_previous = qInstallMessageHandler(handle);
}

LogHook::~LogHook()
{
    const std::lock_guard<std::mutex> lock(g_hookMutex);
    qInstallMessageHandler(g_previous);
    g_action = nullptr;
}
