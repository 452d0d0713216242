#include "common/toolDocuments.h"

#include <algorithm>

namespace kestrova::tools {

namespace {

constexpr int widestOptionColumn = 24;

constexpr Option helpOption{"help", nullptr, "print this text, or that of a command"};
constexpr Option versionOption{"version", nullptr, "print the version"};

QString useOf(Option const & option)
{
    return QStringLiteral("--%1 %2").arg(QLatin1String(option.name), QLatin1String(option.value)).trimmed();
}

/// The options that every command takes.
std::vector<Option> commonOptions(ToolInterface const & tool)
{
    std::vector<Option> options = tool.options;
    options.push_back(helpOption);
    options.push_back(versionOption);
    return options;
}

QString optionsText(QString const & heading, std::vector<Option> const & options)
{
    if (options.empty())
        return {};
    QString text = heading + QLatin1String(":\n");
    for (Option const & option : options)
        text += QStringLiteral("  %1 %2\n")
                    .arg(useOf(option).leftJustified(widestOptionColumn), QLatin1String(option.summary));
    return text + QLatin1Char('\n');
}

int widestSignature(ToolInterface const & tool)
{
    int width = 0;
    for (CommandInterface const & command : tool.commands)
        width = std::max(width, static_cast<int>(signatureOf(command).size()));
    return width;
}

/// The summary as a sentence of its own.
QString sentenceOf(ToolInterface const & tool)
{
    QString const summary = QLatin1String(tool.summary);
    return summary.left(1).toUpper() + summary.mid(1) + QLatin1Char('.');
}

} // namespace

QString toolHelp(ToolInterface const & tool)
{
    QString text = QStringLiteral("usage: %1 COMMAND [ARGUMENT...] [OPTION...]\n\n%2\n\nCommands:\n")
                       .arg(QLatin1String(tool.name), sentenceOf(tool));
    for (CommandInterface const & command : tool.commands)
        text += QStringLiteral("  %1  %2\n")
                    .arg(signatureOf(command).leftJustified(widestSignature(tool)),
                         QLatin1String(command.summary));
    return text + QLatin1Char('\n') + optionsText(QStringLiteral("Options"), commonOptions(tool)) +
           QLatin1String(tool.exitCodes);
}

QString commandHelp(ToolInterface const & tool, CommandInterface const & command)
{
    return QStringLiteral("usage: %1 %2 [OPTION...]\n\n")
               .arg(QLatin1String(tool.name), signatureOf(command)) +
           QString::fromUtf8(command.description) + QLatin1Char('\n') +
           optionsText(QStringLiteral("Options of this command"), command.options) +
           optionsText(QStringLiteral("Options"), commonOptions(tool)) + QLatin1String(tool.exitCodes);
}

// --- The manual page ---

namespace {

/// A text that man does not take for macros or escapes.
QString roff(QString text)
{
    text.replace(QLatin1Char('\\'), QLatin1String("\\e"));
    text.replace(QLatin1Char('-'), QLatin1String("\\-"));
    text.replace(QLatin1String("\n."), QLatin1String("\n\\&."));
    text.replace(QLatin1String("\n'"), QLatin1String("\n\\&'"));
    return text.startsWith(QLatin1Char('.')) || text.startsWith(QLatin1Char('\''))
               ? QLatin1String("\\&") + text
               : text;
}

QString roff(char const * text)
{
    return roff(QString::fromUtf8(text));
}

QString optionEntries(std::vector<Option> const & options)
{
    QString text;
    for (Option const & option : options)
        text += QStringLiteral(".TP\n.B %1\n%2\n").arg(roff(useOf(option)), roff(option.summary));
    return text;
}

} // namespace

QString manualPage(ToolInterface const & tool)
{
    QString const name = roff(tool.name);
    QString text = QStringLiteral(".TH %1 1 \"\" \"%2 %3\" \"User Commands\"\n")
                       .arg(name.toUpper(), name, roff(tool.version));
    text += QStringLiteral(".SH NAME\n%1 \\- %2\n").arg(name, roff(tool.summary));
    text += QStringLiteral(".SH SYNOPSIS\n.B %1\n.I COMMAND\n[\\fIARGUMENT\\fR...] [\\fIOPTION\\fR...]\n")
                .arg(name);
    text += QStringLiteral(".SH COMMANDS\n");
    for (CommandInterface const & command : tool.commands) {
        text += QStringLiteral(".SS %1\n%2").arg(roff(signatureOf(command)), roff(command.description));
        text += optionEntries(command.options);
    }
    text += QStringLiteral(".SH OPTIONS\n") + optionEntries(commonOptions(tool));
    return text + QStringLiteral(".SH EXIT STATUS\n") + roff(tool.exitCodes);
}

// --- Completion ---

namespace {

QString optionNames(std::vector<Option> const & options)
{
    QStringList names;
    for (Option const & option : options)
        names.append(QStringLiteral("--") + QLatin1String(option.name));
    return names.join(QLatin1Char(' '));
}

} // namespace

QString bashCompletion(ToolInterface const & tool)
{
    QString const function =
        QStringLiteral("_") + QString::fromUtf8(tool.name).replace(QLatin1Char('-'), QLatin1Char('_'));
    QStringList commands;
    QString cases;
    for (CommandInterface const & command : tool.commands) {
        commands.append(QLatin1String(command.name));
        cases += QStringLiteral("    %1) options=\"%2\" ;;\n")
                     .arg(QLatin1String(command.name), optionNames(command.options));
    }
    return QStringLiteral("# bash completion of %1\n"
                          "%2() {\n"
                          "    local word=${COMP_WORDS[COMP_CWORD]} command=${COMP_WORDS[1]} options=\n"
                          "    if [ \"$COMP_CWORD\" -eq 1 ]; then\n"
                          "        mapfile -t COMPREPLY < <(compgen -W \"%3 %4\" -- \"$word\")\n"
                          "        return\n"
                          "    fi\n"
                          "    case $command in\n"
                          "%5"
                          "    esac\n"
                          "    if [[ $word == -* ]]; then\n"
                          "        mapfile -t COMPREPLY < <(compgen -W \"$options %4\" -- \"$word\")\n"
                          "    fi\n"
                          "}\n"
                          "complete -o default -F %2 %1\n")
        .arg(QLatin1String(tool.name), function, commands.join(QLatin1Char(' ')),
             optionNames(commonOptions(tool)), cases);
}

} // namespace kestrova::tools
