// SPDX-License-Identifier: MIT
#include "tools/velorx/info/InfoCommand.h"

#include "tools/velorx/HostCodec.h"
#include "tools/velorx/info/Family.h"
#include "tools/velorx/Output.h"
#include "tools/velorx/ProgressBar.h"

#include <QFile>
#include <QJsonDocument>

namespace velorx {

namespace {

// The parser's own check tells the whole range of the type.
std::string CheckCount(const std::string& text)
{
    bool isNumber = false;
    const qint64 number = QByteArray::fromStdString(text).toLongLong(&isNumber);
    return isNumber && number >= 0 ? std::string() : text + " is no whole number from 0";
}

QString ReadSummary(ISummary& summary, const QString& path)
{
    if (!IsTerminal()) {
        return summary.Read(path, nullptr);
    }
    CProgressBar bar = TerminalProgressBar();
    return summary.Read(path, &bar);
}

QByteArray TextReport(const std::string& file, const SFamily& family, const ISummary& summary)
{
    return QByteArray::fromStdString(file) + ": " + family.description + '\n'
        + summary.ToText().toUtf8();
}

QByteArray JsonReport(const std::string& file, const SFamily& family, const ISummary& summary)
{
    QJsonObject report = summary.ToJson();
    report.insert(QStringLiteral("file"), QString::fromUtf8(file.c_str()));
    report.insert(QStringLiteral("family"), QLatin1String(family.name));
    return QJsonDocument(report).toJson();
}

} // namespace

CLI::App* CInfoCommand::AddTo(CLI::App& app)
{
    CLI::App* command = app.add_subcommand("info", "Say what is in a file");
    command->add_option("FILE", file, "The file: " + KnownExtensions().toStdString())
        ->required()
        ->type_name("");
    command->add_flag("--json", json, "Print JSON for programs");
    command->add_option("--rows", rows, "Show the attributes of the first N objects of a MIF table")
        ->type_name("N")
        ->check(CheckCount, "", "");
    command->add_option("--library", library, "Panorama's own library, for RSC classifiers")
        ->type_name("PATH");
    return command;
}

EExit CInfoCommand::Run()
{
    const QString path = PathFromBytes(file);
    const QString fault = WhyNoFile(path);
    if (!fault.isEmpty()) {
        PrintError("cannot read " + file + ": " + fault.toStdString());
        return kExitFailed;
    }
    QFile probe(path);
    if (!probe.open(QIODevice::ReadOnly)) {
        PrintError("cannot open " + file + ": " + probe.errorString().toStdString());
        return kExitFailed;
    }
    const SFamily* family = FindFamily(path, probe.read(kHeadSize));
    probe.close();
    if (family == nullptr) {
        PrintError("cannot read " + file + ": " + WhyNoFamily(path).toStdString());
        return kExitFailed;
    }
    const std::unique_ptr<ISummary> summary = family->makeSummary({rows, PathFromBytes(library)});
    const QString error = ReadSummary(*summary, path);
    const bool printed =
        Print(json ? JsonReport(file, *family, *summary) : TextReport(file, *family, *summary));
    if (!error.isEmpty()) {
        PrintError(file + ": " + error.toStdString());
    }
    return printed && error.isEmpty() ? kExitDone : kExitFailed;
}

} // namespace velorx
