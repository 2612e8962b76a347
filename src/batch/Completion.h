// Shell completion of the batch command, told from the tree of its options, so that it can't fall behind.
//   vrek-batch completion bash > /usr/share/bash-completion/completions/vrek-batch
//   vrek-batch completion zsh  > /usr/share/zsh/vendor-completions/_vrek-batch
//   vrek-batch completion list        a line for each command and option: "vrek-batch road --hz FILE"
#pragma once

#include <iosfwd>

namespace CLI {
class App;
}

namespace vrek::batch {

/// Adds the command "completion", which help doesn't list: it writes the completion of App to Out and ends
/// the parse with success. Call it when the tree is whole; App and Out must outlive the parse.
void AddCompletion(CLI::App& App, std::ostream& Out);

}  // namespace vrek::batch
