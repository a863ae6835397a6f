// The function-button file's reader, and the binding that a button has before the user gives it one.
#include "fnbuttonconfig.h"

#include "reading/cells.h"
#include "reading/document.h"
#include "search.h"

namespace LCD::MainConfigImpl {

using namespace reading;

namespace {

/// Nothing looks at the version of this file, which is meant.
constexpr Frame FN_FRAME{
    .rootTag = "LCD",
    .cannotOpen = "Fail to open file %1",
    .wrongRoot = "The file is not a valid configuration file for lcd.",
};

/// The key code of function button 0. Unsigned, so that no index that a caller may ask for overflows.
constexpr unsigned FIRST_KEY_CODE = 321;

struct FnDefaults {
    int maxCount = 0;
    int defaultVal = 0;
    QVector<QString> sequence;
    QVector<s_FnDefaultBinding> bindings;
};

// clang-format off
void readBindings(const Reader& in, FnDefaults& defaults)
{
    // The read default of this one attribute comes from the file itself.
    const auto type = [&](const Reader& binding, s_FnDefaultBinding& record) {
        record.type = defaults.defaultVal;
        if (binding.hasAttribute("type")) binding.read(record, cell("type", &s_FnDefaultBinding::type));
    };
    defaults.bindings.clear();
    in.list(Walk::Named, "FN", defaults.bindings,
            cell("index",  &s_FnDefaultBinding::index),
            cell("lcdKey", &s_FnDefaultBinding::lcdKey),
            type,
            cell("target", &s_FnDefaultBinding::target, "0"),
            cell("remark", &s_FnDefaultBinding::remark));
}

void readDefaults(const Reader& in, FnDefaults& defaults)
{
    in.element("DefaultVal",      OnNull::Fail, defaults.defaultVal, entry("val"));
    in.element("MaxCount",        OnNull::Fail, defaults.maxCount,   entry("count"));
    in.element("Sequence",        OnNull::Fail, defaults.sequence,   list(Walk::Any, "", std::identity{}, entry("name")));
    in.element("DefaultBindings", OnNull::Skip, defaults,            readBindings);
}
// clang-format on

} // namespace

class FNButtonConfig::Impl {
public:
    FnDefaults defaults;
};

FNButtonConfig::FNButtonConfig() : _impl(std::make_unique<Impl>()) {}

FNButtonConfig::~FNButtonConfig() = default;

bool FNButtonConfig::readConfig(const QString& dir, QString& error)
{
    error.clear();
    const Report report{.error = error, .invalidNode = "Invalid %1 node."};
    return readDocument(QStringLiteral("%1/%2").arg(dir, QStringLiteral("fnkeyboardconfig.xml")), FN_FRAME, report,
                        _impl->defaults, readDefaults);
}

int FNButtonConfig::findFNBtnDefaultValue() { return _impl->defaults.defaultVal; }

int FNButtonConfig::findFNBtnMaxCount() { return _impl->defaults.maxCount; }

QVector<QString> FNButtonConfig::findSequenceStrArray() { return _impl->defaults.sequence; }

QVector<s_FnDefaultBinding> FNButtonConfig::findDefaultBindings() { return _impl->defaults.bindings; }

s_FnDefaultBinding FNButtonConfig::findDefaultBindingByIndex(int index)
{
    if (const auto* binding = firstWhere(_impl->defaults.bindings, &s_FnDefaultBinding::index, index)) return *binding;
    const int lcdKey = static_cast<int>(static_cast<unsigned>(index) + FIRST_KEY_CODE);
    return {index, lcdKey, _impl->defaults.defaultVal, 0, {}};
}

} // namespace LCD::MainConfigImpl
