# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
"""Asks bash, zsh and fish what they would complete a line to.

bash and zsh run on a terminal of their own and get real key presses, since both know the line, its words
and their quoting only there. What they answer comes through a pipe: nothing is read off the screen, and
nothing waits for a time.
"""

import collections
import os
import pty
import selectors
import shutil
import signal
import subprocess
import tempfile
import tty
from pathlib import Path

# What the shell offers, and what the line has become behind the Tab key; fish tells the first alone.
Answer = collections.namedtuple("Answer", "offered line")

ANSWERS_FD = 9
SECONDS_AT_MOST = 120

BASH_START = r"""
PS1= PROMPT_COMMAND=
bind 'set completion-query-items 0'
bind 'set page-completions off'
bind 'set bell-style none'
bind 'set enable-bracketed-paste off'
source /usr/share/bash-completion/bash_completion
source '{completions}/bash/lorva'
source '{completions}/bash/lorvactl'
ask_program()
{
    "_$1" "$@"
    ((${#COMPREPLY[@]} == 0)) || printf 'offered %s\0' "${COMPREPLY[@]}" >&9
}
complete -F ask_program lorva lorvactl
say_line()
{
    printf 'line %s\0' "$READLINE_LINE" >&9
    READLINE_LINE= READLINE_POINT=0
}
bind -x '"\C-x\C-r": say_line'
printf 'ready\0' >&9
"""

ZSH_START = r"""
PS1= RPS1=
unsetopt zle_bracketed_paste 2>/dev/null
unset zle_bracketed_paste
setopt no_beep no_list_beep no_always_last_prompt
fpath=('{completions}/zsh' $fpath)
autoload -Uz compinit
compinit -u -d "$HOME/zcompdump"
LISTMAX=100000 LINES=200 COLUMNS=200
# Every completion ends in the builtin of this name.
compadd() {
    if [[ " $* " != *\ -[a-zA-Z]#[OAD]\ * && ${@[(i)-[OAD]]} -gt $# ]]; then
        local -a offered
        builtin compadd -O offered "$@"
        (( $#offered )) && printf "offered $IPREFIX%s\0" "$offered[@]" >&9
    fi
    builtin compadd "$@"
}
say-line() {
    printf 'line %s\0' "$BUFFER" >&9
    zle kill-buffer
}
zle -N say-line
bindkey -e
bindkey '^X^R' say-line
bindkey '^I' complete-word
zle-line-init() {
    printf 'ready\0' >&9
    zle -D zle-line-init
}
zle -N zle-line-init
"""

STARTS = {
    "bash": (BASH_START, "start.bash", lambda start: ["bash", "--noprofile", "--rcfile", start, "-i"]),
    "zsh": (ZSH_START, ".zshrc", lambda start: ["zsh", "-d", "-i"]),
}


class TerminalShell:
    """A shell on a terminal of its own."""

    def __init__(self, name, completions, environment, folder):
        start, file_name, command = STARTS[name]
        self.settings = tempfile.TemporaryDirectory()
        file = Path(self.settings.name, file_name)
        file.write_text(start.replace("{completions}", str(completions)), encoding="utf-8")
        answers, theirs = os.pipe()
        self.process, self.terminal = pty.fork()
        if self.process == 0:
            # Keys that come before the shell reads them one by one must not act on the terminal.
            tty.setraw(0)
            os.dup2(theirs, ANSWERS_FD)
            os.set_inheritable(ANSWERS_FD, True)
            os.chdir(folder)
            arguments = command(str(file))
            os.execvpe(arguments[0], arguments, environment | {"ZDOTDIR": self.settings.name, "TERM": "dumb"})
        os.close(theirs)
        self.answers = answers
        self.unread = b""
        self.selector = selectors.DefaultSelector()
        self.selector.register(self.answers, selectors.EVENT_READ)
        self.selector.register(self.terminal, selectors.EVENT_READ)
        self.read_until("ready")

    def read_until(self, word):
        """The answers up to the one that begins with the word."""
        told = []
        while not told or told[-1].split(" ")[0] != word:
            end = self.unread.find(b"\0")
            if end >= 0:
                told.append(self.unread[:end].decode("utf-8"))
                self.unread = self.unread[end + 1:]
            else:
                self.receive()
        return told

    def receive(self):
        ready = self.selector.select(SECONDS_AT_MOST)
        if not ready:
            raise RuntimeError("the shell does not answer")
        for key, _ in ready:
            data = os.read(key.fd, 65536)
            if key.fd == self.answers:
                if not data:
                    raise RuntimeError("the shell has ended")
                self.unread += data

    def ask(self, line):
        os.write(self.terminal, line.encode("utf-8") + b"\t\x18\x12")
        told = self.read_until("line")
        return Answer({each[len("offered "):] for each in told[:-1]}, told[-1][len("line "):])

    def close(self):
        os.kill(self.process, signal.SIGKILL)
        os.waitpid(self.process, 0)
        os.close(self.terminal)
        os.close(self.answers)
        self.settings.cleanup()


class Fish:
    """Tells itself what it would offer."""

    def __init__(self, completions, environment, folder):
        self.completions = completions
        self.environment = environment
        self.folder = folder

    def ask(self, line):
        script = 'set -p fish_complete_path $argv[1]; complete -C "$argv[2]"'
        told = subprocess.run(["fish", "--no-config", "-c", script, str(self.completions / "fish"), line],
                              env=self.environment, cwd=self.folder, check=True, capture_output=True, text=True)
        return Answer({each.split("\t")[0] for each in told.stdout.splitlines()}, None)

    def close(self):
        pass


def open_shell(name, completions, environment, folder):
    if not shutil.which(name):
        raise RuntimeError(f"{name} is not installed; scripts/lib.sh names the packages of the tests")
    if name == "fish":
        return Fish(completions, environment, folder)
    return TerminalShell(name, completions, environment, folder)
