// The dictionaries of the spell check: files "<language>.bdic", which some packages of the system bring.
#pragma once

#include <QString>
#include <QStringList>

namespace webengine {

/// The first of the system's usual folders that has a dictionary; empty when none has.
QString DictionaryFolder();
/// The same among the folders named.
QString DictionaryFolder(const QStringList& folders);

/// The dictionaries of the folder for the languages of the user ("en-US", "de"), by their names and the
/// user's order: the one of the very language and country, else any of the language.
QStringList DictionariesFor(const QString& folder, const QStringList& languages);

}  // namespace webengine
