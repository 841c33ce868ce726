#include "recentsources.h"

#include <QSettings>

#include <algorithm>

namespace corvane {

namespace {

constexpr qsizetype longestText = 4096;
constexpr qsizetype mostFiles = 64;

QString listKey()
{
    return QStringLiteral("recentSources");
}

bool isSane(const QString &text)
{
    return text.size() <= longestText
           && std::none_of(text.begin(), text.end(), [](QChar character) {
                  return character.category() == QChar::Other_Control;
              });
}

bool areSane(const QStringList &texts)
{
    return texts.size() <= mostFiles && std::all_of(texts.begin(), texts.end(), isSane);
}

} // namespace

SourceChoice SourceChoice::of(const Options &options)
{
    return {options.source->text, options.definitions, options.overlays, options.framing,
            options.root};
}

QString SourceChoice::addTo(Options &options) const
{
    const SourceAddressResult result = SourceAddress::parse(source);
    options.source = result.address;
    options.definitions = definitions;
    options.overlays = overlays;
    options.framing = framing;
    options.root = root;
    return result.error;
}

RecentSources::RecentSources(QSettings &settings)
    : settings(settings)
{
}

QList<SourceChoice> RecentSources::get() const
{
    QList<SourceChoice> choices;
    const int count = std::clamp(settings.beginReadArray(listKey()), 0, maximumCount);
    for (int i = 0; i < count; ++i) {
        settings.setArrayIndex(i);
        const auto text
            = [this](const char *key) { return settings.value(QLatin1String(key)).toString(); };
        const auto texts
            = [this](const char *key) { return settings.value(QLatin1String(key)).toStringList(); };
        const SourceChoice choice{text("source"), texts("definitions"), texts("overlays"),
                                  text("framing"), text("root")};
        if (!choice.source.isEmpty() && isSane(choice.source) && areSane(choice.definitions)
            && areSane(choice.overlays) && isSane(choice.framing) && isSane(choice.root))
            choices.append(choice);
    }
    settings.endArray();
    return choices;
}

void RecentSources::add(const SourceChoice &choice)
{
    auto choices = get();
    choices.removeIf([&](const SourceChoice &known) { return known.source == choice.source; });
    choices.prepend(choice);
    write(choices.mid(0, maximumCount));
}

void RecentSources::remove(const QString &source)
{
    auto choices = get();
    choices.removeIf([&](const SourceChoice &known) { return known.source == source; });
    write(choices);
}

void RecentSources::write(const QList<SourceChoice> &choices)
{
    settings.remove(listKey());
    settings.beginWriteArray(listKey(), static_cast<int>(choices.size()));
    for (int i = 0; i < choices.size(); ++i) {
        settings.setArrayIndex(i);
        settings.setValue(QStringLiteral("source"), choices.at(i).source);
        settings.setValue(QStringLiteral("definitions"), choices.at(i).definitions);
        settings.setValue(QStringLiteral("overlays"), choices.at(i).overlays);
        settings.setValue(QStringLiteral("framing"), choices.at(i).framing);
        settings.setValue(QStringLiteral("root"), choices.at(i).root);
    }
    settings.endArray();
}

} // namespace corvane
