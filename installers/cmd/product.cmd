rem Change these: the other batch files of this folder read them here.

rem The product, which is also the name of its folder below Program Files.
set "product=Brindle"
rem Its name on the list of applications: the same for all versions, and no part of another product's.
set "application=brindle"
rem The driver package and the certificates of its signer and of the authority that issued that one.
set "inf=Tessalin.inf"
set "publisher=trusted.cer"
set "intermediate=trusted_i.cer"
rem Whether the installation fails when the radio is missing or off: "fails" or "spared".
set "radio_off=fails"
