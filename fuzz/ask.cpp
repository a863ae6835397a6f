#include "ask.h"

#include "interfaces.h"

#include <QStringList>

#include <array>
#include <limits>
#include <random>

namespace fuzz {

namespace {

/// Makes arguments up, always the same ones in the same order. Half of them are what small files use.
class Arguments {
public:
    explicit Arguments(unsigned seed) : _random(seed) {}

    [[nodiscard]] unsigned below(unsigned bound) { return unsigned(_random() % bound); }

    template <class Argument> Argument make()
    {
        if constexpr (std::is_same_v<Argument, int> || std::is_enum_v<Argument>)
            return static_cast<Argument>(number());
        else if constexpr (std::is_same_v<Argument, QString>)
            return text();
        else if constexpr (std::is_same_v<Argument, QStringList>)
            return {text(), text()};
        else if constexpr (std::is_same_v<Argument, std::pair<int, int>>)
            return {number(), number()};
        else
            return Argument();
    }

private:
    int number()
    {
        static constexpr std::array numbers{
            0, 1, 2, 3, 8, 255, -1, 65536, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()};
        return numbers[below(2) != 0 ? below(3) : below(unsigned(numbers.size()))];
    }
    QString text()
    {
        static const QStringList texts{
            "", "home", "input", "1_2", "_", "a/b\\c=%;\n", QString(3000, 'x'), QString::fromUtf8("\u4e2d\U0001F600")};
        return texts[int(below(unsigned(texts.size())))];
    }

    std::minstd_rand _random;
};

template <class Result, class... Parameters> struct Call {
    template <class Interface, class Operation>
    static void make(Interface& component, Operation operation, Arguments& arguments, Transcript& out)
    {
        std::tuple<std::decay_t<Parameters>...> made{arguments.make<std::decay_t<Parameters>>()...};
        std::apply(
            [&](auto&... each) {
                if constexpr (std::is_void_v<Result>)
                    (component.*operation)(each...);
                else
                    out.add((component.*operation)(each...));
                (out.add(each), ...); // Some parameters are results.
            },
            made);
    }
    static constexpr bool isSetter = std::is_void_v<Result>;
    static constexpr int times = sizeof...(Parameters) == 0 ? 1 : 4 * int(sizeof...(Parameters));
};

template <class Interface, class Result, class... Parameters>
Call<Result, Parameters...> callOf(Result (Interface::*)(Parameters...))
{
    return {};
}
template <class Interface, class Result, class... Parameters>
Call<Result, Parameters...> callOf(Result (Interface::*)(Parameters...) const)
{
    return {};
}

/// Asks everything but the load, which is the first operation, and the setters.
template <class Interface, class Load, class... Operations>
void askEach(Interface& component, const std::tuple<Load, Operations...>& operations, Transcript& out)
{
    Arguments arguments(1);
    const auto ask = [&](auto operation) {
        using Asking = decltype(callOf(operation));
        if constexpr (!Asking::isSetter)
            for (int time = 0; time < Asking::times; ++time) Asking::make(component, operation, arguments, out);
    };
    std::apply([&](Load, Operations... each) { (ask(each), ...); }, operations);
}

template <class Interface, class Load, class... Operations>
void setEach(Interface& component, const std::tuple<Load, Operations...>& operations, unsigned choice)
{
    Arguments arguments(choice);
    const auto set = [&](auto operation) {
        using Setting = decltype(callOf(operation));
        Transcript unused;
        if constexpr (Setting::isSetter)
            if (arguments.below(6) == 0) Setting::make(component, operation, arguments, unused);
    };
    std::apply([&](Load, Operations... each) { (set(each), ...); }, operations);
}

} // namespace

void askAll(const lcdcheck::Loaded& loaded, Transcript& out)
{
    askEach(*loaded.devices, interfaces::devices<>, out);
    askEach(*loaded.cards, interfaces::cards<>, out);
    askEach(*loaded.connectors, interfaces::connectors<>, out);
    askEach(*loaded.menu, interfaces::menu<>, out);
    askEach(*loaded.functionKeys, interfaces::functionKeys<>, out);
    askEach(*loaded.keyChecks, interfaces::keyChecks<>, out);
    askEach(*loaded.lockAreas, interfaces::lockAreas<>, out);
}

void askAll(LCD::MainConfig::ILcdConfig& settings, Transcript& out) { askEach(settings, interfaces::settings<>, out); }
void askAll(LCD::MainConfig::ILcdLanguageConfig& settings, Transcript& out)
{
    askEach(settings, interfaces::userSettings<>, out);
}

void setSome(LCD::MainConfig::ILcdConfig& settings, unsigned choice)
{
    setEach(settings, interfaces::settings<>, choice);
}
void setSome(LCD::MainConfig::ILcdLanguageConfig& settings, unsigned choice)
{
    setEach(settings, interfaces::userSettings<>, choice);
}

} // namespace fuzz
