// What libFuzzer calls: it keeps the inputs that reach new code, and asks for changed ones. See ./dev fuzz.
#include "mutate.h"
#include "try.h"

#include <QCoreApplication>

#include <cstddef>
#include <cstdint>
#include <cstring>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

extern "C" int LLVMFuzzerInitialize(int* count, char*** arguments)
{
    static const QCoreApplication application(*count, *arguments);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), int(size));
    const bool isOneOfMany = qHash(bytes, 0) % 8 == 0;
    fuzz::tryInput(fuzz::Input(bytes), isOneOfMany ? fuzz::Scope::Configuration : fuzz::Scope::File);
    return 0;
}

namespace {

QByteArray mutateBytes(QByteArray content, std::size_t maxSize)
{
    const int size = content.size();
    content.resize(int(maxSize));
    const std::size_t changed =
        LLVMFuzzerMutate(reinterpret_cast<std::uint8_t*>(content.data()), std::size_t(size), maxSize);
    content.truncate(int(changed));
    return content;
}

} // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize, unsigned seed)
{
    std::minstd_rand random(seed);
    fuzz::Input input(QByteArray(reinterpret_cast<const char*>(data), int(size)));
    const bool isKnown = input.kind() || input.name == fuzz::FACTORY_SETTINGS || input.name == fuzz::USER_SETTINGS;
    if (!isKnown || random() % 100 == 0) input.name = fuzz::anyName(random);
    const std::size_t room = maxSize - std::size_t(input.name.size()) - 1;
    QByteArray changed;
    if (const auto kind = input.kind(); kind && random() % 8 != 0)
        changed = fuzz::mutateDocument(*kind, input.content, random);
    if (changed.isEmpty() || std::size_t(changed.size()) > room)
        changed = mutateBytes(input.content.left(int(room)), room);
    input.content = changed;
    const QByteArray bytes = input.bytes();
    std::memcpy(data, bytes.constData(), std::size_t(bytes.size()));
    return std::size_t(bytes.size());
}
