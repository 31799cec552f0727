#!/usr/bin/env python3
"""check_sample.py ZELVOR_CLI SAMPLES_FOLDER: the sample business is what its script writes, every operation of
it is accepted, every kind of document is in it, and the books that come out are sound."""

import json
import subprocess
import sys
import tempfile
from pathlib import Path

KINDS = {
    "BuyProduct", "SellProduct", "SellIntangibles", "MoveProduct", "AddProduct", "DeleteProduct", "Return",
    "MoneyFromContragent", "MoneyToContragent", "MoneyToExpend", "MoneyFromEmployee", "MoneyToEmployee",
    "InnerTransaction", "MoneyAdd", "BuyProperty", "SellProperty", "AddProperty", "DeleteProperty",
}


def run(*command, stdin=None):
    return subprocess.run([str(part) for part in command], capture_output=True, text=True, input=stdin)


def main(cli, samples):
    operations = (samples / "larkmoor_cycles.jsonl").read_text().splitlines()
    written = run(sys.executable, samples / "make_sample.py").stdout.splitlines()
    assert written == operations, "larkmoor_cycles.jsonl is not what make_sample.py writes"

    confirmed = {operation["type"] for operation in map(json.loads, operations)
                 if operation["do"] == "document" and operation["confirm"]}
    assert confirmed == KINDS, f"kinds of documents: {KINDS ^ confirmed}"

    with tempfile.TemporaryDirectory() as folder:
        project = Path(folder) / "larkmoor.pdb"
        assert run(cli, "create", project, "--currency", "EUR").returncode == 0
        applied = run(cli, "apply", project, samples / "larkmoor_cycles.jsonl", "--replay", "--bulk")
        answers = [json.loads(line) for line in applied.stdout.splitlines()]
        refused = [(operations[index], answer) for index, answer in enumerate(answers) if not answer["ok"]]
        assert not refused, f"{len(refused)} refused, first {refused[0]}"
        assert len(answers) == len(operations), f"{len(answers)} answers to {len(operations)} operations"
        assert applied.returncode == 0, applied.stderr

        findings = run(cli, "check", project)
        assert findings.returncode == 0, findings.stdout
        balance = json.loads(run(cli, "report", "balance", project).stdout)
        assert any(row["kind"] == "item" for row in balance["rows"]), "an empty balance sheet"


if __name__ == "__main__":
    main(Path(sys.argv[1]), Path(sys.argv[2]))
