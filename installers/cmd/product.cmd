rem Change these settings. The other batch files of this folder read them.

rem The product, which is also the name of its folder below Program Files.
set "product=Brindle"
rem The product's name on the list of applications. It must be the same for all versions, and no part of another name.
set "application=brindle"
rem The driver package, its signer's certificate, and the certificate of the authority that issued it.
set "inf=Tessalin.inf"
set "publisher=trusted.cer"
set "intermediate=trusted_i.cer"
rem Whether the installation fails when the radio is missing or off: "fails" or "spared".
set "radio_off=fails"
