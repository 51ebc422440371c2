// SPDX-License-Identifier: MIT
#include "tools/velorx/render/RenderCommand.h"

#include "tools/velorx/convert/Interruption.h"
#include "tools/velorx/convert/SourceFamily.h"
#include "tools/velorx/convert/TargetFile.h"
#include "tools/velorx/convert/Temporaries.h"
#include "tools/velorx/HostCodec.h"
#include "tools/velorx/Output.h"
#include "tools/velorx/ProgressBar.h"
#include "tools/velorx/render/PictureOptions.h"

#include <csignal>
#include <optional>

namespace velorx {

namespace {

std::string CheckTarget(const std::string& name)
{
    EPictureFormat format = EPictureFormat::Png;
    return FindPictureFormat(name, format) ? std::string()
                                           : name + " does not end in .svg, .png or .pdf";
}

std::string CheckSize(const std::string& text)
{
    int width = 0;
    int height = 0;
    return ParseSize(text, width, height);
}

std::string CheckColour(const std::string& text)
{
    quint32 colour = 0;
    return ParseColour(text, colour)
        ? std::string()
        : "unknown colour " + text + "; known are #RRGGBB and " + KnownColours();
}

std::string Draw(SPictureJob job, bool isShown, CConversionReport& report)
{
    std::optional<CProgressBar> bar;
    if (isShown && IsTerminal()) {
        bar.emplace(TerminalProgressBar());
        job.progress = &*bar;
    }
    return DrawPicture(job, report).toStdString();
}

} // namespace

CLI::App* CRenderCommand::AddTo(CLI::App& app)
{
    CLI::App* command = app.add_subcommand("render", "Draw a file as a picture");
    command->add_option("IN", source, "The file to read: " + ConvertibleExtensions())
        ->required()
        ->type_name("");
    command
        ->add_option("OUT", target,
                     "The picture to write; its ending, .svg, .png or .pdf, tells the format")
        ->required()
        ->type_name("")
        ->check(CheckTarget, "", "");
    command
        ->add_option("--layers", layers,
                     "Draw these layers only, even if they are off; velorx info lists them")
        ->type_name("A,B")
        ->delimiter(',')
        ->allow_extra_args(false);
    command
        ->add_option("--size", size,
                     "Pixels, 96 of them an inch, so that 794x1123 is A4; 1600 wide if not given")
        ->type_name("WxH")
        ->check(CheckSize, "", "");
    command
        ->add_option("--background", background,
                     "#RRGGBB, or a name such as black, grey or transparent")
        ->type_name("COLOUR")
        ->check(CheckColour, "", "")
        ->capture_default_str();
    command->add_flag("--force", force, "Replace OUT if it exists");
    command->add_flag("--quiet", quiet, "Print nothing but errors");
    return command;
}

SPictureJob CRenderCommand::JobFor(const SFamily& family) const
{
    SPictureJob job;
    job.source = PathFromBytes(source);
    job.family = family.name;
    job.name = QString::fromUtf8(target.c_str());
    for (const std::string& layer : layers) {
        job.layers.append(QString::fromUtf8(layer.c_str()));
    }
    // Checked when the command line was parsed.
    static_cast<void>(FindPictureFormat(target, job.format));
    static_cast<void>(ParseColour(background, job.background));
    if (!size.empty()) {
        static_cast<void>(ParseSize(size, job.width, job.height));
    }
    return job;
}

EExit CRenderCommand::Run()
{
    const SFamily* family = nullptr;
    std::string fault = FindSourceFamily(source, family);
    if (fault.empty()) {
        fault = WhyNoPictures().toStdString();
    }
    if (!fault.empty()) {
        PrintError("cannot draw " + source + ": " + fault);
        return kExitFailed;
    }
    // A file that may not grow any more is then a file that cannot be written, not the end.
    static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
    CTemporaries temporaries;
    const CInterruption interruption([&temporaries] { temporaries.Abandon(); });
    return DrawInto(*family, temporaries);
}

EExit CRenderCommand::DrawInto(const SFamily& family, CTemporaries& temporaries) const
{
    CTargetFile file(target, temporaries);
    std::string fault = file.Begin(force);
    if (!fault.empty()) {
        PrintError("cannot write " + target + ": " + fault);
        return kExitFailed;
    }
    SPictureJob job = JobFor(family);
    job.target = PathFromBytes(file.WorkPath());
    CConversionReport report;
    fault = Draw(job, !quiet, report);
    if (fault.empty()) {
        fault = file.Finish();
    }
    if (!fault.empty()) {
        PrintError("cannot draw " + source + " as " + target + ": " + fault);
        return kExitFailed;
    }
    return quiet || Print(report.ToText().toUtf8()) ? kExitDone : kExitFailed;
}

} // namespace velorx
