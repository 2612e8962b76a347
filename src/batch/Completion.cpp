#include "batch/Completion.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>
#include <ostream>

namespace vrek::batch {
namespace {

// A word that may follow a command: one of its commands, or a name of an option.
struct TWord {
  std::string sName;
  std::string sHelp;
  std::string sValue;  // what the option takes, "FILE"; empty without a value
};

struct TCommand {
  std::string sPath;  // "vrek-batch check road"
  std::string sHelp;
  bool bFiles = false;  // takes files as plain words
  std::vector<TWord> aCommands, aOptions;
};

void AddOptions(const CLI::App& App, TCommand& Command) {
  for (const auto* pOption : App.get_options()) {
    if (!pOption->nonpositional()) {
      Command.bFiles = true;
      continue;
    }
    const std::string sValue = pOption->get_items_expected_max() > 0 ? pOption->get_type_name() : "";
    for (const auto& sName : pOption->get_snames())
      Command.aOptions.push_back({"-" + sName, pOption->get_description(), sValue});
    for (const auto& sName : pOption->get_lnames())
      Command.aOptions.push_back({"--" + sName, pOption->get_description(), sValue});
  }
}

// The commands in the order of the tree. The options of a command above are taken below it, too.
void Collect(const CLI::App& App, const TCommand& Above, std::vector<TCommand>& aCommands) {
  TCommand Command{Above.sPath + App.get_name(), App.get_description(), false, {}, {}};
  AddOptions(App, Command);
  for (const auto& Word : Above.aOptions) {
    const bool bOwn = std::any_of(Command.aOptions.begin(), Command.aOptions.end(),
                                  [&](const TWord& Own) { return Own.sName == Word.sName; });
    if (!bOwn && Word.sName != "--version") Command.aOptions.push_back(Word);
  }
  const auto aBelow = App.get_subcommands([](const CLI::App* pApp) { return !pApp->get_group().empty(); });
  for (const auto* pBelow : aBelow)
    Command.aCommands.push_back({pBelow->get_name(), pBelow->get_description(), ""});
  aCommands.push_back(Command);
  Command.sPath += " ";
  for (const auto* pBelow : aBelow) Collect(*pBelow, Command, aCommands);
}

std::vector<TCommand> Tree(const CLI::App& App) {
  std::vector<TCommand> aCommands;
  Collect(App, {}, aCommands);
  return aCommands;
}

bool IsFile(const TWord& Word) {
  return Word.sValue.starts_with("FILE");
}

// "--hz|--vt": the options that bMatch picks, as a pattern of the shell's case.
template <typename TMatch>
std::string Pattern(const std::vector<TCommand>& aCommands, TMatch bMatch) {
  std::vector<std::string> aNames;
  for (const auto& Command : aCommands) {
    for (const auto& Word : Command.aOptions) {
      if (bMatch(Word) && std::find(aNames.begin(), aNames.end(), Word.sName) == aNames.end())
        aNames.push_back(Word.sName);
    }
  }
  return CLI::detail::join(aNames, "|");
}

std::string FileOptions(const std::vector<TCommand>& aCommands) {
  return Pattern(aCommands, IsFile);
}

std::string OtherValues(const std::vector<TCommand>& aCommands) {
  return Pattern(aCommands, [](const TWord& Word) { return !Word.sValue.empty() && !IsFile(Word); });
}

// "vrek-batch road"|"vrek-batch check": the words that lead deeper into the tree.
std::string Paths(const std::vector<TCommand>& aCommands) {
  std::vector<std::string> aPaths;
  for (const auto& Command : aCommands) aPaths.push_back("\"" + Command.sPath + "\"");
  aPaths.erase(aPaths.begin());
  return CLI::detail::join(aPaths, "|");
}

std::string BashWords(const TCommand& Command) {
  std::vector<std::string> aNames;
  for (const auto& Word : Command.aCommands) aNames.push_back(Word.sName);
  for (const auto& Word : Command.aOptions) aNames.push_back(Word.sName);
  return CLI::detail::join(aNames, " ");
}

void WriteBash(const std::vector<TCommand>& aCommands, std::ostream& Out) {
  Out << "# bash completion of vrek-batch; written by \"vrek-batch completion bash\".\n"
         "_vrek_batch() {\n"
         "  local current=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD-1]}\n"
         "  local path=vrek-batch word words=\n"
         "  COMPREPLY=()\n"
         "  for word in \"${COMP_WORDS[@]:1:COMP_CWORD-1}\"; do\n"
         "    case \"$path $word\" in\n      "
      << Paths(aCommands)
      << ") path=\"$path $word\" ;;\n    esac\n  done\n"
         "  case \"$before\" in\n    "
      << FileOptions(aCommands)
      << ") compopt -o filenames 2>/dev/null; mapfile -t COMPREPLY < <(compgen -f -- \"$current\"); return "
         ";;\n"
         "    "
      << OtherValues(aCommands) << ") return ;;\n  esac\n  case \"$path\" in\n";
  for (const auto& Command : aCommands) {
    Out << "    \"" << Command.sPath << "\") words=\"" << BashWords(Command) << "\" ;;\n";
  }
  Out << "  esac\n"
         "  mapfile -t COMPREPLY < <(compgen -W \"$words\" -- \"$current\")\n"
         "  case \"$path\" in *\" run\")\n"
         "    if [[ $current != -* ]]; then\n"
         "      compopt -o filenames 2>/dev/null; mapfile -t COMPREPLY < <(compgen -f -- \"$current\")\n"
         "    fi ;;\n"
         "  esac\n"
         "}\n"
         "complete -F _vrek_batch vrek-batch\n";
}

// 'name:help' as _describe takes it.
std::string ZshWord(const TWord& Word) {
  std::string sText = Word.sName + ":";
  for (const char c : Word.sHelp) {
    if (c == '\'') {
      sText += "'\\''";
    } else {
      sText += c;
    }
  }
  return "'" + sText + "'";
}

void WriteZsh(const std::vector<TCommand>& aCommands, std::ostream& Out) {
  Out << "#compdef vrek-batch\n"
         "# zsh completion of vrek-batch; written by \"vrek-batch completion zsh\".\n"
         "local command_path=vrek-batch word\n"
         "local -a below options\n"
         "for word in \"${words[@]:1:$((CURRENT - 2))}\"; do\n"
         "  case \"$command_path $word\" in\n    "
      << Paths(aCommands)
      << ") command_path=\"$command_path $word\" ;;\n  esac\ndone\n"
         "case \"${words[CURRENT-1]}\" in\n  "
      << FileOptions(aCommands) << ") _files; return ;;\n  " << OtherValues(aCommands)
      << ") _message value; return ;;\nesac\ncase \"$command_path\" in\n";
  for (const auto& Command : aCommands) {
    Out << "  \"" << Command.sPath << "\")\n    below=(";
    for (const auto& Word : Command.aCommands) Out << "\n      " << ZshWord(Word);
    Out << ")\n    options=(";
    for (const auto& Word : Command.aOptions) Out << "\n      " << ZshWord(Word);
    Out << ")\n    ;;\n";
  }
  Out << "esac\n"
         "(( $#below )) && _describe command below\n"
         "[[ \"$command_path\" == *' run' && \"${words[CURRENT]}\" != -* ]] && _files\n"
         "_describe -o option options\n";
}

void WriteList(const std::vector<TCommand>& aCommands, std::ostream& Out) {
  for (const auto& Command : aCommands) {
    Out << Command.sPath << "\n";
    for (const auto& Word : Command.aOptions) {
      Out << Command.sPath << " " << Word.sName << (Word.sValue.empty() ? "" : " " + Word.sValue) << "\n";
    }
  }
}

}  // namespace

void AddCompletion(CLI::App& App, std::ostream& Out) {
  auto* pCommand = App.add_subcommand("completion", "write the completion of a shell")->group("");
  auto sShell = std::make_shared<std::string>();
  pCommand->add_option("shell", *sShell, "bash, zsh or list")
      ->required()
      ->check(CLI::IsMember({"bash", "zsh", "list"}));
  pCommand->callback([&App, &Out, sShell] {
    const auto aCommands = Tree(App);
    if (*sShell == "bash") WriteBash(aCommands, Out);
    if (*sShell == "zsh") WriteZsh(aCommands, Out);
    if (*sShell == "list") WriteList(aCommands, Out);
    throw CLI::Success();
  });
}

}  // namespace vrek::batch
