// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// Writes the metadata block of the plug-in library as a C++ header, while the library is built.
//
// moc could write one too, but stamps it with the minor version of the Qt that it belongs to and
// with whether the build is a debug build. The block of this plug-in names Qt 5.12, the oldest
// version that reads the format, in every build, so that one library serves every viewer from 5.12
// on.

#include <QCborMap>
#include <QCborValue>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

namespace {

// Keys of Qt's metadata map, see QtPluginMetaDataKeys in Qt 5.12 to 5.15.
enum MetadataKey { Iid = 2, ClassName = 3, MetaData = 4 };

QByteArray metadataBlock(const QString &iid, const QString &className, const QJsonObject &metadata)
{
    // Format version 0, Qt 5.12, no architecture requirement, no debug flag.
    const char header[] = {0x00, 0x05, 0x0C, 0x00};
    QCborMap map;
    map.insert(Iid, iid);
    map.insert(ClassName, className);
    map.insert(MetaData, QCborMap::fromJsonObject(metadata));
    return QByteArrayLiteral("QTMETADATA !") + QByteArray(header, sizeof header)
           + map.toCborValue().toCbor();
}

void writeArray(QTextStream &out, const QByteArray &bytes)
{
    constexpr int bytesPerLine = 16;
    for (int i = 0; i < bytes.size(); ++i) {
        out << (i % bytesPerLine ? " " : "\n    ")
            << QStringLiteral("0x%1,").arg(quint8(bytes[i]), 2, 16, QLatin1Char('0'));
    }
}

int fail(const QString &message)
{
    QTextStream(stderr) << "plugin-metadata-writer: " << message << '\n';
    return 1;
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 5) {
        return fail(QStringLiteral("usage: plugin-metadata-writer IID CLASS METADATA.json OUT.h"));
    }
    QFile source(QString::fromLocal8Bit(argv[3]));
    if (!source.open(QIODevice::ReadOnly)) {
        return fail(source.fileName() + QStringLiteral(": ") + source.errorString());
    }
    QJsonParseError error{};
    const QJsonObject metadata = QJsonDocument::fromJson(source.readAll(), &error).object();
    if (error.error != QJsonParseError::NoError) {
        return fail(source.fileName() + QStringLiteral(": ") + error.errorString());
    }
    QFile target(QString::fromLocal8Bit(argv[4]));
    if (!target.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        return fail(target.fileName() + QStringLiteral(": ") + target.errorString());
    }
    QTextStream out(&target);
    out << "// Generated from " << source.fileName().section(QLatin1Char('/'), -1) << ".\n"
        << "#pragma once\n\n#include <QtPlugin>\n\nstatic constexpr unsigned char "
           "pluginMetadata[]\n    "
           "QT_PLUGIN_METADATA_SECTION = {";
    writeArray(out, metadataBlock(QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2]),
                                  metadata));
    out << "\n};\n";
    return 0;
}
