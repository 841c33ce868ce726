#pragma once

#include <QString>
#include <QStringList>

#include <google/protobuf/compiler/importer.h>

#include <optional>

namespace corvane {

/**
 * The folders in which imports are looked for. Nothing outside of them is ever read: names with
 * "..", absolute ones and symbolic links that lead out are not found.
 *
 * Files of more than 16 MiB, and files that nest more than 200 blocks, are refused.
 */
class ProtobufSourceTree final : public google::protobuf::compiler::SourceTree
{
public:
    void addFolder(const QString &folder);

    /** The name by which \a file can be imported, or nothing where it is in none of the folders. */
    std::optional<QString> getImportName(const QString &file) const;
    /** The file that an import of \a name means. */
    std::optional<QString> findFile(const QString &name) const;

    /** The caller owns the stream. Null, with getLastErrorMessage(), where there is no such file.
     */
    google::protobuf::io::ZeroCopyInputStream *Open(const std::string &filename) override;
    std::string GetLastErrorMessage() override;

private:
    QStringList folders; ///< Canonical paths.
    QString lastError;
};

} // namespace corvane
