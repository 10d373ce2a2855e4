// compile_kaitai.js FOLDER: compiles FOLDER/herald.json, the format as JSON, for Python into FOLDER.
const fs = require("fs");
const path = require("path");

const folder = path.resolve(process.argv[2]);
const Compiler = require(path.join(folder, "node_modules", "kaitai-struct-compiler"));

async function compile() {
  const format = JSON.parse(fs.readFileSync(path.join(folder, "herald.json"), "utf8"));
  const compiler = typeof Compiler === "function" ? new Compiler() : Compiler;
  const files = await compiler.compile("python", format, null, false);
  for (const [name, text] of Object.entries(files)) fs.writeFileSync(path.join(folder, name), text);
}

compile().catch((failure) => {
  console.error(`herald.ksy: ${failure.message || failure}`);
  process.exit(1);
});
