// One ini file: read, changed, and read again by a component that has not seen the changes.
#include "ask.h"
#include "try.h"

#include "lcdconfig.h"
#include "lcdlanguageconfig.h"

#include "check/check.h"
#include "check/quiet.h"

#include <QFileInfo>
#include <QHash>

#include <memory>

namespace fuzz {

using namespace LCD::MainConfigImpl;

namespace {

/// A component that has read the file of the stage.
template <class Config> class Loaded {
public:
    Loaded()
    {
        const QString file = Stage::root() + '/' + Stage::path({});
        if constexpr (std::is_constructible_v<Config, QString>) {
            _config = std::make_unique<Config>(file);
            _config->readConfig();
        } else {
            _config = std::make_unique<Config>();
            _config->readConfig(QFileInfo(file).path());
        }
    }
    Config& operator*() { return *_config; }

private:
    std::unique_ptr<Config> _config;
};

/// Every value that the component has. Some are written by the first getter that finds them empty.
template <class Config> QByteArray values(Config& config)
{
    Transcript first;
    askAll(config, first);
    Transcript out;
    askAll(config, out);
    return out.text();
}

template <class Config> void readAndWrite(unsigned choice)
{
    QByteArray before;
    {
        Loaded<Config> config;
        (void)values(*config);
        setSome(*config, choice);
        before = values(*config);
    }
    Loaded<Config> config;
    const QByteArray after = values(*config);
    if (before != after) disagree("what was set and what is read again", before, after);
}

} // namespace

void trySettings(bool user, const QByteArray& content)
{
    const lcdcheck::Quiet quiet;
    const Stage stage(Stage::path({}), content);
    lcdcheck::check({{Stage::root()}, {}, {}, {}}, {});
    const unsigned choice = qHash(content, 1);
    if (user)
        readAndWrite<LcdLanguageConfig>(choice);
    else
        readAndWrite<LcdConfig>(choice);
}

} // namespace fuzz
